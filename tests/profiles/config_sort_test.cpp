#include "profiles/config_sort.h"

#include <string>
#include <tuple>

#include <EGL/egl.h>
#include <gtest/gtest.h>

namespace {

using egl::Config;
using List = std::vector<int32_t>;

Config makeConfig(List attributes) {
    attributes.push_back(EGL_NONE);
    return Config(nullptr, attributes.data());
}

// How the order answers for two configs, in either direction.
using Order = std::pair<bool, bool>;
constexpr Order first{true, false}, neither{false, false}, both{true, true};

Order compare(List request, const List &a, const List &b) {
    request.push_back(EGL_NONE);
    const egl::ConfigSortOrder order(request.data());
    return {order(makeConfig(a), makeConfig(b)), order(makeConfig(b), makeConfig(a))};
}

constexpr int32_t caveat = EGL_CONFIG_CAVEAT, slow = EGL_SLOW_CONFIG, broken = EGL_NON_CONFORMANT_CONFIG;
constexpr int32_t red = EGL_RED_SIZE, green = EGL_GREEN_SIZE, blue = EGL_BLUE_SIZE, alpha = EGL_ALPHA_SIZE;
constexpr int32_t buffer = EGL_BUFFER_SIZE, depth = EGL_DEPTH_SIZE, id = EGL_CONFIG_ID;

// In most rows the key at hand is held against lighter ones that say the opposite.
TEST(ConfigSortOrder, Keys) {
    const std::tuple<const char *, Order, List, List, List> rows[] = {
        {"none before slow", first, {}, {buffer, 32}, {caveat, slow}},
        {"slow before not conformant", first, {}, {caveat, slow, buffer, 9}, {caveat, broken}},
        {"caveat before colours", first, {red, 5}, {red, 5}, {caveat, slow, red, 8}},
        {"unknown caveat after none, and before it", both, {}, {buffer, 32}, {caveat, 0, buffer, 16}},
        {"sums differ", neither, {red, 5}, {red, 5, buffer, 16}, {red, 8, buffer, 32}},
        {"unasked colours do not count", first, {red, 5}, {red, 5, id, 1}, {red, 5, green, 8, id, 2}},
        {"sums, not colours", first, {red, 1, alpha, 1}, {red, 8, id, 1}, {red, 4, alpha, 4, id, 2}},
        {"0 and -1 ask for nothing", first, {red, 0, blue, -1}, {red, 5, blue, 5, id, 1}, {red, 8, id, 2}},
        {"the later request stands", first, {red, 5, red, 0}, {red, 5, id, 1}, {red, 8, id, 2}},
        {"sums wrap", first, {red, 1, blue, 1}, {red, INT32_MAX, blue, INT32_MAX}, {red, -2, id, 2}},
        {"buffer size", first, {}, {buffer, 16, EGL_SAMPLE_BUFFERS, 1}, {buffer, 32}},
        {"samples", first, {}, {EGL_SAMPLES, 2, depth, 24}, {EGL_SAMPLES, 4}},
        {"depth", first, {}, {depth, 16, EGL_STENCIL_SIZE, 8}, {depth, 24}},
        {"stencil", first, {}, {id, 9}, {EGL_STENCIL_SIZE, 8, id, 1}},
        {"id, signed", first, {}, {id, -1, EGL_ALPHA_MASK_SIZE, 8}, {id, 1}},
        {"nothing else", neither, {}, {id, 1, EGL_LEVEL, 1}, {id, 1}},
    };
    for (const auto &[reason, order, request, a, b] : rows)
        EXPECT_EQ(compare(request, a, b), order) << reason;
}

TEST(SortConfigs, MoreColourBitsAreNoAdvantage) {
    const std::tuple<List, const char *, const char *> rows[] = {
        {{EGL_NONE}, "231", "the smaller buffer first"},
        {{red, 5, EGL_NONE}, "123", "3 would come before 1, but the two never meet"},
    };
    for (const auto &[request, expected, reason] : rows) {
        std::vector<Config> configs = {makeConfig({id, 1, red, 8, buffer, 32, depth, 24}),
                                       makeConfig({id, 2, red, 5, buffer, 16}),
                                       makeConfig({id, 3, red, 8, buffer, 32, depth, 0})};
        egl::sortConfigs(configs, egl::ConfigSortOrder(request.data()));
        std::string ids;
        for (const Config &config : configs)
            ids += std::to_string(config.attributeOr0(id));
        EXPECT_EQ(ids, expected) << reason;
    }
}

} // namespace
