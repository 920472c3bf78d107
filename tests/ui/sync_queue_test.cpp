#include "ui/sync_queue.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

TEST(SyncQueue, PopWaitsForAnElement) {
    SyncQueue<int> queue;
    int popped = 0;
    std::thread consumer([&] { popped = queue.pop(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    queue.push(7);
    consumer.join();
    EXPECT_EQ(popped, 7);
}

TEST(SyncQueue, EveryThreadKeepsItsOrder) {
    constexpr int producers = 4, each = 500;
    SyncQueue<std::pair<int, int>> queue;
    std::vector<std::thread> threads;
    for (int producer = 0; producer < producers; ++producer) {
        threads.emplace_back([&queue, producer] {
            for (int i = 0; i < each; ++i)
                queue.push({producer, i});
        });
    }
    std::vector<int> next(producers, 0);
    for (int i = 0; i < producers * each; ++i) {
        const auto [producer, number] = queue.pop();
        EXPECT_EQ(number, next[producer]++);
    }
    for (auto &thread : threads)
        thread.join();
}

} // namespace
