#include "profiles/config.h"

#include <algorithm>
#include <array>
#include <tuple>

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gmock/gmock.h>

#include "profiles/config_list.h"
#include "profiles/config_of.h"
#include "profiles/device_profile.h"

namespace {

using egl::Config;
using egl::ConfigList;
using testing::ElementsAre;

TEST(ConfigMatch, Rules) {
    const Config plain = configOf({EGL_CONFIG_ID, 3, EGL_LEVEL, 0, EGL_RED_SIZE, 5, EGL_GREEN_SIZE, 6, EGL_SURFACE_TYPE,
                                   EGL_WINDOW_BIT | EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE, 5});
    const Config full =
        configOf({EGL_BUFFER_SIZE, 5, EGL_RED_SIZE, 5, EGL_GREEN_SIZE, 5, EGL_BLUE_SIZE, 5, EGL_ALPHA_SIZE, 5,
                  EGL_DEPTH_SIZE, 5, EGL_STENCIL_SIZE, 5, EGL_SAMPLES, 5, EGL_SAMPLE_BUFFERS, 5});
    const Config clear = configOf({EGL_TRANSPARENT_TYPE, EGL_TRANSPARENT_RGB, EGL_TRANSPARENT_GREEN_VALUE, 7});
#define MATCH(config, isMatch, reason, ...)                                                                            \
    EXPECT_EQ(config.matches(ended(__VA_ARGS__).data()), isMatch) << reason << ": " << #__VA_ARGS__;
#include "profiles/data/matches.def"
    EXPECT_TRUE(plain.matches(nullptr));
}

TEST(ValidateAttributeList, AcceptsExactlyTheKnownValues) {
    const std::tuple<List, List, List> rows[] = {
#define VALUES(...) {__VA_ARGS__},
#include "profiles/data/valid_values.def"
    };
    const auto isValid = [](int32_t attribute, int32_t value) {
        return egl::validateAttributeList(ended({EGL_LEVEL, 0, attribute, value}).data());
    };
    for (const auto &[attributes, valid, invalid] : rows)
        for (const int32_t attribute : attributes) {
            for (const int32_t value : valid)
                EXPECT_TRUE(isValid(attribute, value)) << attribute << " " << value;
            for (const int32_t value : invalid)
                EXPECT_FALSE(isValid(attribute, value)) << attribute << " " << value;
        }
}

// The handles that are written for this size, then the unchanged ones of the four places.
std::vector<intptr_t> stored(const ConfigList &list, int32_t size, const int32_t *choice = nullptr) {
    std::vector<intptr_t> handles(4);
    const auto out = reinterpret_cast<void **>(handles.data());
    const uint32_t count = choice ? list.chooseConfigs(choice, out, size) : list.listConfigs(out, size);
    EXPECT_EQ(std::ranges::count(handles, 0), 4 - static_cast<int>(count));
    return handles;
}

TEST(ConfigList, StoresHandlesUpToTheSize) {
    const ConfigList list({.configs = {configOf({EGL_CONFIG_ID, 1, EGL_BUFFER_SIZE, 32}),
                                       configOf({EGL_CONFIG_ID, 2, EGL_BUFFER_SIZE, 16, EGL_DEPTH_SIZE, 0}),
                                       configOf({EGL_CONFIG_ID, -2, EGL_BUFFER_SIZE, 16})},
                           .name = "test",
                           .esVersions = {}},
                          0);
    const int32_t any[] = {EGL_NONE}, deep[] = {EGL_DEPTH_SIZE, 16, EGL_NONE};
    EXPECT_THAT(stored(list, 4), ElementsAre(1, 2, -2, 0)) << "negative ids are sign-extended and listed last";
    EXPECT_THAT(stored(list, 2), ElementsAre(1, 2, 0, 0));
    EXPECT_THAT(stored(list, -1), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(stored(list, 1, any), ElementsAre(-2, 0, 0, 0));
    EXPECT_THAT(stored(list, -1, any), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(stored(list, 4, deep), ElementsAre(-2, 1, 0, 0));
    EXPECT_EQ(list.listConfigs(nullptr, -5) + list.chooseConfigs(nullptr, nullptr, -5), 6u);
    EXPECT_EQ(list.findConfig(static_cast<uint64_t>(-2))->attributeOr0(EGL_CONFIG_ID), -2);
    EXPECT_EQ(list.findConfig(0xfffffffe), nullptr);
    EXPECT_EQ(list.noConfig().attributeOr0(EGL_CONFIG_ID), 0);
    EXPECT_EQ(list.noConfig().attributeOr0(EGL_BUFFER_SIZE), 32);
}

TEST(DeviceProfile, AllowsExactlyItsVersions) {
    const std::array<int32_t, 3> rows[] = {
#define VERSION(...) {__VA_ARGS__},
#include "profiles/data/allowed_versions.def"
    };
    for (const auto &[major, minor, token] : rows) {
        EXPECT_EQ(egl::isEsVersionAllowed(egl::defaultProfile, major, minor), token != 0) << major << "." << minor;
        for (int32_t only = capability::es1_1; only <= capability::es3_2; ++only)
            EXPECT_EQ(egl::isEsVersionAllowed({{}, "one version", {only}}, major, minor), token == only) << only;
    }
    EXPECT_TRUE(egl::isEsVersionAllowed({{}, "", {capability::es1_1}}, 3, 2))
        << "versions do not tell the default profile";
    EXPECT_FALSE(egl::isEsVersionAllowed({{egl::Config()}, "", {capability::es1_1}}, 3, 2)) << "while configs do";
}

} // namespace
