#include "profiles/embedded_profiles.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "profiles/devices.h"
#include "profiles/profile_reader.h"

namespace {

const std::string data = ZELVANE_SOURCE_DIR "/src/profiles/data/";

TEST(EmbeddedProfiles, AreTheFilesInTheirOrder) {
    ASSERT_EQ(egl::embeddedProfiles.size(), std::size(embeddedDevices));
    for (size_t i = 0; i < std::size(embeddedDevices); ++i) {
        std::ostringstream text;
        text << std::ifstream(data + embeddedDevices[i].file + ".xml", std::ios::binary).rdbuf();
        EXPECT_TRUE(egl::embeddedProfiles[i] == text.str()) << embeddedDevices[i].file << " differs";
        EXPECT_EQ(egl::profileDisplayName(egl::embeddedProfiles[i]), embeddedDevices[i].name);
        EXPECT_EQ(egl::findEmbeddedProfile(embeddedDevices[i].name), text.str()) << embeddedDevices[i].name;
    }
    for (const char *unknown : {"", "TI Pandaboard", "TI PandaBoard ", "Generic Tarnlight", "Tarnlight T330"})
        EXPECT_EQ(egl::findEmbeddedProfile(unknown), "") << unknown;
}

TEST(EmbeddedProfiles, AreReadWhole) {
    for (const auto &device : embeddedDevices) {
        egl::DeviceProfile profile;
        EXPECT_TRUE(loadDeviceProfile(profile, CKZRTString("/nowhere"), CKZRTString(device.name)));
        EXPECT_EQ(profile.name, device.name);
        EXPECT_EQ(profile.esVersions, device.majors) << device.name;
        ASSERT_EQ(profile.configs.size(), device.configs) << device.name;
        int32_t id = 0;
        for (const egl::Config &config : profile.configs) {
            EXPECT_EQ(config.attributeOr0(EGL_CONFIG_ID), ++id) << device.name;
            EXPECT_EQ(config.attributeOr0(EGL_MIN_SWAP_INTERVAL), 1000) << device.name;
            EXPECT_NE(config.attributeOr0(EGL_SURFACE_TYPE), 0) << device.name << " " << id;
        }
    }
}

TEST(EmbeddedProfiles, ANameIsTheDeviceOrElseTheRenderer) {
    const std::pair<const char *, const char *> rows[] = {
        {"<profile><renderer>R</renderer><device>D</device></profile>", "D"},
        {"<profile><renderer>R</renderer></profile>", "Generic R"},
        {"<profile><renderer/></profile>", "Generic "},
        {"<profile><device/><renderer>R</renderer></profile>", ""},
        {"<profile><device> D&amp;E </device></profile>", " D&E "},
        {"<profile><es><device>D</device></es></profile>", ""},
        {"<device>D</device>", ""},
        {"<profile><device>D</device>", ""},
        {"", ""},
    };
    for (const auto &[text, name] : rows)
        EXPECT_EQ(egl::profileDisplayName(text), name) << text;
}

} // namespace
