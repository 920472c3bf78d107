#include "profiles/embedded_profiles.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "profiles/profile_reader.h"

namespace {

// What the devices are, scripts/check-profiles knows.
const std::pair<const char *, const char *> devices[] = {
#define EMBEDDED_PROFILE(file) {#file, ZELVANE_SOURCE_DIR "/src/profiles/data/" #file ".xml"},
#include "profiles/data/embedded_profiles.def"
#undef EMBEDDED_PROFILE
};

std::string fileName(std::string_view displayName) {
    std::string name;
    for (const char letter : displayName)
        name += std::isalnum(letter) ? static_cast<char>(std::tolower(letter)) : '_';
    return name;
}

size_t countOf(std::string_view text, std::string_view part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST(EmbeddedProfiles, AreTheFilesInTheirOrderReadWhole) {
    ASSERT_EQ(egl::embeddedProfiles.size(), std::size(devices));
    for (size_t i = 0; i < std::size(devices); ++i) {
        SCOPED_TRACE(devices[i].first);
        std::ostringstream text;
        text << std::ifstream(devices[i].second, std::ios::binary).rdbuf();
        ASSERT_EQ(egl::embeddedProfiles[i], text.str());
        const std::string name = egl::profileDisplayName(text.str());
        EXPECT_EQ(fileName(name), devices[i].first);
        EXPECT_EQ(egl::findEmbeddedProfile(name), text.str());

        egl::DeviceProfile profile;
        EXPECT_TRUE(loadDeviceProfile(profile, CKZRTString("/nowhere"), CKZRTString(name.c_str())));
        EXPECT_EQ(profile.name, name);
        EXPECT_EQ(profile.esVersions.size(), countOf(text.str(), "<es version="));
        EXPECT_EQ(profile.configs.size(), countOf(text.str(), "<config id="));
        int32_t id = 0;
        for (const egl::Config &config : profile.configs) {
            EXPECT_EQ(config.attributeOr0(EGL_CONFIG_ID), ++id);
            EXPECT_EQ(config.attributeOr0(EGL_MIN_SWAP_INTERVAL), 1000);
            EXPECT_NE(config.attributeOr0(EGL_SURFACE_TYPE), 0) << id;
        }
    }
    for (const char *unknown : {"", "TI Pandaboard", "TI PandaBoard ", "Generic Tarnlight", "Tarnlight T330"})
        EXPECT_EQ(egl::findEmbeddedProfile(unknown), "") << unknown;
}

TEST(EmbeddedProfiles, ANameIsTheDeviceOrElseTheRenderer) {
    const std::pair<const char *, const char *> rows[] = {
        {"<profile><renderer>R</renderer><device>D</device></profile>", "D"},
        {"<profile><renderer>R</renderer></profile>", "Generic R"},
        {"<profile><device/><renderer>R</renderer></profile>", ""},
        {"<profile><device> D&amp;E </device></profile>", " D&E "},
        {"<profile><es><device>D</device></es></profile>", ""},
        {"<profile><device>D</device>", ""},
    };
    for (const auto &[text, name] : rows)
        EXPECT_EQ(egl::profileDisplayName(text), name) << text;
}

} // namespace
