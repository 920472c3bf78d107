#include "profiles/config_sort.h"

#include <tuple>

#include <gtest/gtest.h>

#include "profiles/config_of.h"

namespace {

using egl::Config;

// The result of the order for two configs, in both directions.
using Order = std::pair<bool, bool>;
constexpr Order first{true, false}, neither{false, false}, both{true, true};

constexpr int32_t caveat = EGL_CONFIG_CAVEAT, slow = EGL_SLOW_CONFIG, broken = EGL_NON_CONFORMANT_CONFIG;
constexpr int32_t red = EGL_RED_SIZE, green = EGL_GREEN_SIZE, blue = EGL_BLUE_SIZE, alpha = EGL_ALPHA_SIZE;
constexpr int32_t buffer = EGL_BUFFER_SIZE, depth = EGL_DEPTH_SIZE, id = EGL_CONFIG_ID;

Order orderOf(const List &request, const List &a, const List &b) {
    const egl::ConfigSortOrder order(ended(request).data());
    return {order(configOf(a), configOf(b)), order(configOf(b), configOf(a))};
}

TEST(ConfigSortOrder, Keys) {
#define KEY(reason, expected, ...) EXPECT_EQ(orderOf(__VA_ARGS__), expected) << reason;
#include "profiles/data/sort_keys.def"
}

TEST(SortConfigs, MoreColourBitsAreNoAdvantage) {
    const std::tuple<List, List, const char *> rows[] = {
        {{}, {2, 3, 1}, "the smaller buffer first"},
        {{red, 5}, {1, 2, 3}, "3 would come before 1, but the two never meet"},
    };
    for (const auto &[request, expected, reason] : rows) {
        std::vector<Config> configs = {configOf({id, 1, red, 8, buffer, 32, depth, 24}),
                                       configOf({id, 2, red, 5, buffer, 16}),
                                       configOf({id, 3, red, 8, buffer, 32, depth, 0})};
        egl::sortConfigs(configs, egl::ConfigSortOrder(ended(request).data()));
        List ids;
        for (const Config &config : configs)
            ids.push_back(config.attributeOr0(id));
        EXPECT_EQ(ids, expected) << reason;
    }
}

} // namespace
