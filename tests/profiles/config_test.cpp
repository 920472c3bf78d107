#include "profiles/config.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>

#include "profiles/device_profile.h"

namespace {

using egl::Config;

TEST(Config, LaterPairOfAListWinsAndAbsentOnesLeaveTheOutputAlone) {
    const int32_t list[] = {EGL_LEVEL, 1, EGL_MIN_SWAP_INTERVAL, 5, EGL_LEVEL, 2, EGL_NONE, EGL_LEVEL, 3};
    const int32_t expected[] = {EGL_LEVEL, 2, EGL_MIN_SWAP_INTERVAL, 5, EGL_MAX_SWAP_INTERVAL, 0, EGL_DEPTH_SIZE, -77};
    for (size_t i = 0; i < std::size(expected); i += 2) {
        int32_t value = -77;
        EXPECT_EQ(Config(nullptr, list).getAttribute(expected[i], &value), expected[i + 1] != -77);
        EXPECT_EQ(value, expected[i + 1]) << expected[i];
    }
}

TEST(Config, EqualityTakesInTheHostFormatAndOrderGoesById) {
    const auto host = std::make_shared<egl::osx::Config>(nullptr);
    const int32_t negative[] = {EGL_CONFIG_ID, -1, EGL_NONE}, one[] = {EGL_CONFIG_ID, 1, EGL_LEVEL, -9, EGL_NONE};
    EXPECT_EQ(Config(host, one), Config(host, one));
    EXPECT_FALSE(Config(host, one) == Config(std::make_shared<egl::osx::Config>(nullptr), one));
    EXPECT_FALSE(Config(host, one) == Config(host, nullptr));
    EXPECT_TRUE(Config(nullptr, negative) < Config() && Config() < Config(nullptr, one)) << "an absent id is 0";
}

TEST(DeviceProfile, AllowsExactlyItsVersions) {
    const struct {
        int32_t major, minor, token; // token 0: ES has no such version
    } rows[] = {{1, 7, 1}, {1, -1, 1}, {2, 0, 2}, {2, 1, 0}, {3, 0, 3},  {3, 1, 4},
                {3, 2, 5}, {3, 3, 0},  {0, 0, 0}, {4, 0, 0}, {2, -1, 0}, {3, -1, 0}};
    for (const auto &[major, minor, token] : rows) {
        EXPECT_EQ(egl::isEsVersionAllowed(egl::defaultProfile, major, minor), token != 0) << major << "." << minor;
        for (int32_t only = egl::ES1; only <= egl::ES32; ++only)
            EXPECT_EQ(egl::isEsVersionAllowed({{}, "one version", {only}}, major, minor), token == only) << only;
    }
    EXPECT_TRUE(egl::isEsVersionAllowed({{}, "", {egl::ES1}}, 3, 2)) << "versions do not tell the default profile";
    EXPECT_FALSE(egl::isEsVersionAllowed({{Config()}, "", {egl::ES1}}, 3, 2)) << "while configs do";
}

} // namespace
