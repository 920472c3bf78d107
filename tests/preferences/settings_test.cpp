#include "preferences/settings.h"

#include <dlfcn.h>

#include "preferences/host_configuration.h"
#include "preferences/preference_home.h"

namespace {

using SettingsTest = PreferenceHome;
using HostConfigurationDeathTest = PreferenceHome;

const std::string directoryPair = "<key>profiles_directory</key><string>/profiles</string>";
const std::string otherPairs = "<key>current_profile</key><string>phone</string>"
                               "<key>strict_context_mode</key><true/><key>radeon_hd_hack</key><true/>";

TEST_F(SettingsTest, ReadsTheSectionOfThisVersion) {
    const std::tuple<std::string, std::string, std::string, std::string, bool, bool> rows[] = {
        {"Zelvane 6.31", directoryPair + otherPairs, "/profiles", "phone", true, true}, // every key
        {"Zelvane 6.30", directoryPair + otherPairs, "", "", true, false},              // another version
        {"Zelvane 6.31", otherPairs, "", "", true, true}, // no profile without a directory
        {"Zelvane 6.31", "<key>strict_context_mode</key><string>true</string>", "", "", true, false}, // wrong type
        {"Zelvane 6.31", "<true/>", "", "", false, false},                                            // no key
    };
    std::string error;
    for (const auto &[section, pairs, directory, profile, isLoaded, isStrict] : rows) {
        SCOPED_TRACE(section + pairs);
        Settings settings;
        writePairs("<key>" + section + "</key><dict>" + pairs + "</dict>");
        EXPECT_EQ(settings.load(error), isLoaded);
        EXPECT_EQ(settings.isLoaded(), isLoaded);
        EXPECT_EQ(settings.getProfilesDirectory(), directory);
        EXPECT_EQ(settings.getCurrentProfile(), profile);
        EXPECT_EQ(settings.getStrictContextMode(), isStrict);
        EXPECT_EQ(settings.getRadeonHdHack(), isStrict);
    }
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

// The word is looked up once in a process, so that this runs in one of its own.
TEST_F(HostConfigurationDeathTest, WordOfTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto loadEmbedded = [&] {
        Settings settings;
        std::string error;
        writePairs("<key>Zelvane 6.31</key><dict>" + directoryPair + otherPairs + "</dict>");
        const bool isLoaded = dlopen(ZELVANE_EMBEDDER, RTLD_NOW | RTLD_GLOBAL) && settings.load(error);
        const bool isProfileIgnored =
            settings.getProfilesDirectory() == "/profiles" && settings.getCurrentProfile().empty();
        _exit(isLoaded && isProfileIgnored && getHostConfiguration() == 6 ? 0 : 2);
    };
    EXPECT_EXIT(loadEmbedded(), testing::ExitedWithCode(0), "");
}

} // namespace
