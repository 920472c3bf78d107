// Per-name data about the objects of a share group. Any thread; a lookup takes no lock while the map is empty.
#pragma once

#include "es_gl.h"

#include <atomic>
#include <mutex>
#include <optional>
#include <unordered_map>

template <typename Value>
class SharedMap {
public:
    [[nodiscard]] bool isEmpty() const { return m_isEmpty.load(std::memory_order_relaxed); }

    [[nodiscard]] std::optional<Value> find(GLuint key) const {
        if (isEmpty()) return std::nullopt;
        const std::lock_guard lock(m_mutex);
        const auto found = m_values.find(key);
        if (found == m_values.end()) return std::nullopt;
        return found->second;
    }
    void set(GLuint key, const Value &value) {
        const std::lock_guard lock(m_mutex);
        m_values.insert_or_assign(key, value);
        m_isEmpty.store(false, std::memory_order_relaxed);
    }
    void remove(GLuint key) {
        if (isEmpty()) return;
        const std::lock_guard lock(m_mutex);
        m_values.erase(key);
        m_isEmpty.store(m_values.empty(), std::memory_order_relaxed);
    }

private:
    mutable std::mutex m_mutex;
    std::unordered_map<GLuint, Value> m_values; // guarded by m_mutex
    std::atomic<bool> m_isEmpty = true;
};
