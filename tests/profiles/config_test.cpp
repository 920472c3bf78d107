#include "profiles/config.h"

#include <gtest/gtest.h>

#include "profiles/device_profile.h"

namespace {

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
    EXPECT_FALSE(egl::isEsVersionAllowed({{egl::Config()}, "", {egl::ES1}}, 3, 2)) << "while configs do";
}

} // namespace
