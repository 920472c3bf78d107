// A first-in-first-out queue between threads, without an upper bound. Elements are copied in and out.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>

template <typename T>
class SyncQueue {
public:
    // Waits only for the copies of other threads.
    void push(const T &element) {
        const std::lock_guard lock(m_mutex);
        m_elements.push_back(element);
        m_isFilled.notify_one();
    }

    // Waits until there is an element.
    [[nodiscard]] T pop() {
        std::unique_lock lock(m_mutex);
        m_isFilled.wait(lock, [this] { return !m_elements.empty(); });
        T element = m_elements.front();
        m_elements.pop_front();
        return element;
    }

private:
    std::deque<T> m_elements;
    std::condition_variable m_isFilled;
    std::mutex m_mutex;
};
