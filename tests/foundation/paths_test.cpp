#include "foundation/paths.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

#include "support/environment.h"

namespace {

using Value = std::optional<std::string>;

TEST(Paths, VariablesDecide) {
    const passwd *user = getpwuid(getuid());
    for (const auto &[value, home] :
         {std::pair<Value, std::string>("/some", "/some"), {"", ""}, {{}, user ? user->pw_dir : ""}}) {
        const Variable variable("HOME", value);
        std::string config = "sentinel";
        EXPECT_EQ(getConfigDirectory(config), !home.empty());
        EXPECT_EQ(config, home.empty() ? "" : home + "/.kzrconfig/Tarnwell Graphics");
    }
    for (const auto &[value, directory] :
         {std::pair<Value, std::string>("/x", "/x/"), {"/x/", "/x/"}, {"", "/tmp/"}, {{}, "/tmp/"}}) {
        const Variable variable("TMPDIR", value);
        EXPECT_EQ(getTemporaryDirectory(), directory);
    }
    std::string path = "sentinel";
    EXPECT_FALSE(getProfilePathFromEnvironment(path));
    EXPECT_EQ(path, "sentinel");
    const Variable variable("ZELVANE_PROFILE_PATH", "");
    EXPECT_TRUE(getProfilePathFromEnvironment(path)) << "set, though empty";
    EXPECT_EQ(path, "");
}

} // namespace
