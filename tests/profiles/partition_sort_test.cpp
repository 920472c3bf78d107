#include "profiles/partition_sort.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// Digits, capitals and small letters are three groups: only records of the same group are ordered.
bool groupedBefore(char a, char b) {
    return a / 32 == b / 32 && a < b;
}

std::string sorted(std::string records) {
    egl::PartitionSort(std::span(records), groupedBefore).run();
    return records;
}

TEST(PartitionSort, OrderThatIsNotTransitiveLeavesWhatTheStepsLeave) {
#define SORT(records, expected, reason) EXPECT_EQ(sorted(records), expected) << reason;
#include "profiles/data/partition_sorts.def"
}

// Applications see the resulting order, so the hash of many results must not change.
TEST(PartitionSort, NoStepChanges) {
    std::mt19937 random(11);
    uint32_t hash = 0;
    for (size_t round = 0; round < 3000; ++round) {
        const size_t groups = 1 + round % 3;
        std::string records(round < 2900 ? round % 97 : 998 + round % 4, '\0');
        for (char &record : records)
            record = static_cast<char>(32 * (1 + random() % groups) + 1 + random() % 26);
        if (round % 2 == 0) std::ranges::sort(records);
        for (size_t swaps = 0; swaps < records.size() / 8; ++swaps)
            std::swap(records[random() % records.size()], records[random() % records.size()]);
        const std::string result = sorted(records);
        EXPECT_TRUE(groups > 1 || std::ranges::is_sorted(result)) << records;
        for (const char record : result)
            hash = hash * 16777619u ^ static_cast<uint8_t>(record);
    }
    EXPECT_EQ(hash, 1091826043u);
}

// The arrays have exactly the size of the range, so that the sanitizer reports a step outside it.
TEST(PartitionSort, OrderWithoutAnyRulesStaysInsideAndKeepsEveryRecord) {
    std::mt19937 random(5);
    const std::function<bool(uint32_t, uint32_t)> orders[] = {
        [](uint32_t, uint32_t) { return true; },
        [&](uint32_t, uint32_t) { return random() % 3 != 0; },
    };
    for (size_t round = 0; round < 600; ++round) {
        for (const auto &before : orders) {
            std::vector<uint32_t> expected(round < 590 ? round % 59 : 990 + 2 * round % 97), records;
            std::iota(expected.begin(), expected.end(), 0u);
            records = expected;
            egl::PartitionSort(std::span(records), before).run();
            std::ranges::sort(records);
            ASSERT_EQ(records, expected);
        }
    }
}

} // namespace
