// The handles of one kind of objects on one display, under a lock of their own. Any thread.
#pragma once

#include <mutex>

#include "egl/object_table.h"

namespace egl::standard {

template <typename Object>
class LockedTable {
public:
    [[nodiscard]] void *insert(std::shared_ptr<Object> object) {
        const std::lock_guard lock(m_mutex);
        const uint64_t handle = m_objects.takeHandle();
        m_objects.insert(handle, std::move(object));
        return reinterpret_cast<void *>(handle);
    }

    // Null for an unknown handle.
    [[nodiscard]] std::shared_ptr<Object> find(const void *handle) const {
        const std::lock_guard lock(m_mutex);
        return m_objects.find(reinterpret_cast<uint64_t>(handle));
    }

    // Removes the object and returns the table's reference. Null for an unknown handle.
    [[nodiscard]] std::shared_ptr<Object> take(const void *handle) {
        const std::lock_guard lock(m_mutex);
        return m_objects.take(reinterpret_cast<uint64_t>(handle));
    }

    // Empties the table and returns all references, for the caller to drop without the lock.
    [[nodiscard]] std::map<uint64_t, std::shared_ptr<Object>> takeAll() {
        const std::lock_guard lock(m_mutex);
        return m_objects.takeAll();
    }

private:
    mutable std::mutex m_mutex;
    ObjectTable<Object> m_objects; // guarded by m_mutex
};

} // namespace egl::standard
