// Handles of one kind on one display. Not synchronised: the display's lock guards every call.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace egl {

// Handles count from 1 and are never reused, so that a stale handle is unknown and not that of another object.
template <typename Object>
class ObjectTable {
public:
    [[nodiscard]] uint64_t takeHandle() { return m_nextHandle++; }
    void insert(uint64_t handle, std::shared_ptr<Object> object) { m_objects.emplace(handle, std::move(object)); }

    [[nodiscard]] std::shared_ptr<Object> find(uint64_t handle) const {
        const auto found = m_objects.find(handle);
        return found == m_objects.end() ? nullptr : found->second;
    }

    // Removes the object and returns the table's reference. Null for an unknown handle.
    [[nodiscard]] std::shared_ptr<Object> take(uint64_t handle) {
        auto node = m_objects.extract(handle);
        return node.empty() ? nullptr : std::move(node.mapped());
    }

    // In handle order.
    [[nodiscard]] std::vector<std::shared_ptr<Object>> all() const {
        std::vector<std::shared_ptr<Object>> objects;
        for (const auto &[handle, object] : m_objects)
            objects.push_back(object);
        return objects;
    }

    // Empties the table and returns all references, for the caller to drop without a lock. Numbering continues.
    [[nodiscard]] std::map<uint64_t, std::shared_ptr<Object>> takeAll() { return std::exchange(m_objects, {}); }

private:
    std::map<uint64_t, std::shared_ptr<Object>> m_objects;
    uint64_t m_nextHandle = 1;
};

} // namespace egl
