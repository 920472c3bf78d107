// A list that any thread adds to and that one thread empties at every bind. Emptying an empty list takes no lock.
#pragma once

#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

template <typename Item>
class PendingList {
public:
    void add(Item item) {
        const std::lock_guard lock(m_mutex);
        m_items.push_back(std::move(item));
        m_isEmpty.store(false, std::memory_order_relaxed);
    }

    // Returns the items in the order in which they were added. Items that another thread is just adding may be left to
    // the next call.
    [[nodiscard]] std::vector<Item> take() {
        if (m_isEmpty.load(std::memory_order_relaxed)) return {};
        const std::lock_guard lock(m_mutex);
        m_isEmpty.store(true, std::memory_order_relaxed);
        return std::exchange(m_items, {});
    }

private:
    std::atomic<bool> m_isEmpty = true;
    std::mutex m_mutex;
    std::vector<Item> m_items; // guarded by m_mutex
};
