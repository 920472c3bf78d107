#include "profiles/embedded_profiles.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "profiles/profile_reader.h"

namespace {

// scripts/check-profiles checks the contents.
const char *const files[] = {
#define EMBEDDED_PROFILE(file) ZELVANE_SOURCE_DIR "/src/profiles/data/" #file ".xml",
#include "profiles/data/embedded_profiles.def"
#undef EMBEDDED_PROFILE
};

TEST(EmbeddedProfiles, AreTheFilesInTheirOrderReadWhole) {
    ASSERT_EQ(egl::embeddedProfiles.size(), std::size(files));
    for (size_t i = 0; i < std::size(files); ++i) {
        SCOPED_TRACE(files[i]);
        std::ostringstream text;
        text << std::ifstream(files[i], std::ios::binary).rdbuf();
        ASSERT_EQ(egl::embeddedProfiles[i], text.str());
        const std::string name = egl::profileDisplayName(text.str());
        EXPECT_EQ(egl::findEmbeddedProfile(name), text.str());

        egl::DeviceProfile profile;
        EXPECT_TRUE(loadDeviceProfile(profile, CKZRTString("/nowhere"), CKZRTString(name.c_str())));
        EXPECT_EQ(profile.name, name);
        ASSERT_FALSE(profile.configs.empty());
        const auto last = "<config id=\"" + std::to_string(profile.configs.size()) + '"';
        EXPECT_EQ(text.str().rfind("<config id="), text.str().find(last));
    }
    for (const char *unknown : {"", "TI Pandaboard", "TI PandaBoard ", "Generic Tarnlight", "Tarnlight T330"})
        EXPECT_EQ(egl::findEmbeddedProfile(unknown), "") << unknown;
}

TEST(EmbeddedProfiles, ANameIsTheDeviceOrElseTheRenderer) {
#define NAME(text, name) EXPECT_EQ(egl::profileDisplayName(text), name) << text;
#include "profiles/data/profile_names.def"
}

} // namespace
