#include "preferences/settings.h"

#include <dlfcn.h>

#include "preferences/host_configuration.h"
#include "preferences/preference_home.h"

namespace {

using SettingsTest = PreferenceHome;

const std::string directoryPair = "<key>profiles_directory</key><string>/profiles</string>";
const std::string otherPairs = "<key>current_profile</key><string>phone</string>"
                               "<key>strict_context_mode</key><true/><key>radeon_hd_hack</key><true/>";

TEST_F(SettingsTest, ReadsTheSectionOfThisVersion) {
    std::string error;
    const auto expectSection = [&](const char *reason, const std::string &section, const std::string &pairs,
                                   const std::string &directory, const std::string &profile, bool isLoaded,
                                   bool isStrict) {
        SCOPED_TRACE(reason);
        Settings settings;
        writePairs("<key>" + section + "</key><dict>" + pairs + "</dict>");
        EXPECT_TRUE(settings.load(error) == isLoaded && settings.isLoaded() == isLoaded);
        EXPECT_EQ(settings.getProfilesDirectory(), directory);
        EXPECT_EQ(settings.getCurrentProfile(), profile);
        EXPECT_TRUE(settings.getStrictContextMode() == isStrict && settings.getRadeonHdHack() == isStrict);
    };
#define SECTION(...) expectSection(__VA_ARGS__);
#include "preferences/data/sections.def"
    EXPECT_EQ(error, "ERROR: Missing <key> tag\n");
}

TEST_F(SettingsTest, VariableSeedsTheDirectoryOnce) {
    for (const char *value : {"/seed", "/later"}) {
        const Variable variable("ZELVANE_PROFILE_PATH", value);
        Settings settings;
        std::string error;
        ASSERT_TRUE(settings.load(error)) << error;
        EXPECT_EQ(settings.getProfilesDirectory(), "/seed");
    }
}

// The symbol is looked up once per process, so this case has a process of its own.
TEST_F(SettingsTest, WordOfTheProcess) {
    ASSERT_TRUE(dlopen(ZELVANE_EMBEDDER, RTLD_NOW | RTLD_GLOBAL));
    writePairs("<key>Zelvane 6.31</key><dict>" + directoryPair + otherPairs + "</dict>");
    Settings settings;
    std::string error;
    EXPECT_TRUE(settings.load(error)) << error;
    EXPECT_EQ(settings.getProfilesDirectory(), "/profiles");
    EXPECT_EQ(settings.getCurrentProfile(), "") << "ignored";
    EXPECT_EQ(getHostConfiguration(), 6u);
}

} // namespace
