#include "profiles/profile_reader.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <tuple>

namespace {

using egl::DeviceProfile;

const CKZRTString anyName("any");

DeviceProfile read(const std::string &text) {
    DeviceProfile profile;
    EXPECT_TRUE(readDeviceProfile(profile, text, anyName)) << text;
    return profile;
}

std::optional<int32_t> valueIn(const std::string &config, int32_t attribute) {
    const DeviceProfile profile = read("<profile><egl><config id=\"1\">" + config + "</config></egl></profile>");
    int32_t value = 0;
    if (profile.configs.size() != 1 || !profile.configs.begin()->getAttribute(attribute, &value)) return std::nullopt;
    return value;
}

std::string bits(const std::string &element, const std::vector<std::string> &values) {
    std::string text;
    for (const std::string &value : values)
        text.append("<").append(element).append(">").append(value).append("</").append(element).append(">");
    return text;
}

TEST(ProfileReader, ReadsEachElementByItsKind) {
    const std::tuple<std::string, const char *, int32_t, std::optional<int32_t>> rows[] = {
        {"<red_size>8</red_size>", "integer", EGL_RED_SIZE, 8},
        {"<red_size> \n 8x</red_size>", "a number and what follows it", EGL_RED_SIZE, 8},
        {"<red_size>0x10</red_size>", "decimal only", EGL_RED_SIZE, 0},
        {"<red_size/>", "no text", EGL_RED_SIZE, 0},
        {"<red_size><a/>8</red_size>", "text behind an element", EGL_RED_SIZE, 0},
        {"<red_size>4294967297</red_size>", "low 32 bits", EGL_RED_SIZE, 1},
        {"<red_size>8</red_size><red_size>5</red_size>", "the last one", EGL_RED_SIZE, 5},
        {"<config_caveat>12368</config_caveat>", "enumerant", EGL_CONFIG_CAVEAT, EGL_SLOW_CONFIG},

        {"<bind_to_texture_rgb>EGL_TRUE</bind_to_texture_rgb>", "true", EGL_BIND_TO_TEXTURE_RGB, 1},
        {"<bind_to_texture_rgb>1</bind_to_texture_rgb>", "1 is false", EGL_BIND_TO_TEXTURE_RGB, 0},
        {"<bind_to_texture_rgb>EGL_TRUE </bind_to_texture_rgb>", "a blank", EGL_BIND_TO_TEXTURE_RGB, 0},

        {bits("renderable_type", {"EGL_OPENGL_ES_BIT", "EGL_OPENGL_ES2_BIT"}), "bits add up", EGL_RENDERABLE_TYPE, 5},
        {bits("conformant", {"EGL_OPENGL_ES3_BIT_KHR", "EGL_OPENGL_BIT"}), "the others", EGL_CONFORMANT, 72},
        {bits("surface_type", {"EGL_PBUFFER_BIT", "EGL_PIXMAP_BIT", "4"}), "no numbers", EGL_SURFACE_TYPE, 3},
        {"<renderable_type>8</renderable_type>", "absent, not 8", EGL_RENDERABLE_TYPE, std::nullopt},
        {"<conformant>EGL_TRUE</conformant>", "the default stands", EGL_CONFORMANT, 0},

        {"<max_pbuffer><width>64</width></max_pbuffer>", "group", EGL_MAX_PBUFFER_WIDTH, std::nullopt},
        {"<swap_interval><min>0</min><max>5</max></swap_interval>", "group", EGL_MIN_SWAP_INTERVAL, 1000},
        {"<transparency><type>12370</type></transparency>", "group", EGL_TRANSPARENT_TYPE, EGL_NONE},
        {"<transparency><red>7</red></transparency>", "group", EGL_TRANSPARENT_RED_VALUE, 0},
        {"<transparency><level>2</level></transparency>", "descendants count", EGL_LEVEL, 2},
        {"<a><b><red_size>5</red_size></b></a>", "below unknown elements too", EGL_RED_SIZE, 5},
        {"<config id=\"7\"><red_size>4</red_size></config>", "a config inside is a descendant", EGL_RED_SIZE, 4},
        {"<config id=\"7\"/>", "but its id is not", EGL_CONFIG_ID, 1},
    };
    for (const auto &[config, why, attribute, expected] : rows)
        EXPECT_EQ(valueIn(config, attribute), expected) << why << ": " << config;
}

TEST(ProfileReader, OrdersConfigsByIdAndKeepsTheFirst) {
    const std::pair<const char *, std::vector<int32_t>> rows[] = {
        {"", {}},
        {"<config id=\"3\"/><config id=\"-1\"/><config id=\"2\"/>", {-1, 2, 3}},
        {"<config/><config id=\"x\"/><config id=\"\"/>", {0}},
        {"<config id=\"4\"/><config id=\" 4 \"><level>2</level></config><config id=\"4x\"/>", {4}},
        {"<configs id=\"1\"/><a><config id=\"2\"/></a><config id=\"2147483647\"/>", {2147483647}},
    };
    for (const auto &[configs, ids] : rows) {
        std::vector<int32_t> found;
        for (const egl::Config &config : read("<profile><egl>" + std::string(configs) + "</egl></profile>").configs) {
            found.push_back(config.attributeOr0(EGL_CONFIG_ID));
            EXPECT_EQ(config.attributeOr0(EGL_LEVEL), 0) << "not the first";
        }
        EXPECT_EQ(found, ids) << configs;
    }
}

TEST(ProfileReader, MapsVersionsToTokens) {
    const std::pair<const char *, std::set<int32_t>> rows[] = {
        {R"(<es version="20"/><es version="11"/><es api="3"/>)", {egl::ES1, egl::ES2}},
        {R"(<es version="1"/><es version="2"/><es version="3"/>)", {egl::ES1, egl::ES2, egl::ES3}},
        {R"(<es version="30"/><es version="31"/><es version="32"/>)", {egl::ES3, egl::ES31, egl::ES32}},
        {R"(<es version="3.1"/>)", {egl::ES3}},
        {R"(<es version="0"/><es version="10"/><es version="-1"/><es version="ES 2"/><es version=""/>)", {}},
    };
    for (const auto &[elements, versions] : rows)
        EXPECT_EQ(read("<profile>" + std::string(elements) + "<egl/></profile>").esVersions, versions) << elements;
}

TEST(ProfileReader, TellsWhatIsNoProfile) {
    std::string nested;
    for (int i = 0; i < 100000; ++i)
        nested += "<profile>";
    const std::tuple<std::string, const char *, bool, bool> rows[] = {
        // text, reason, whether it is read, whether the name is stored
        {"<profile><egl/></profile>", "the least", true, true},
        {"<!-- a --><other/><profile><egl/></profile>", "not the first element", true, true},
        {"<profile><egl/><egl><config id=\"1\"/></egl></profile>", "the first egl counts", true, true},
        {"<profile/>", "no egl", false, true},
        {"<profile><es><egl/></es></profile>", "egl elsewhere", false, true},
        {"<egl/>", "no profile", false, true},
        {"", "empty", false, false},
        {"<profile><egl></profile>", "tags cross", false, false},
        {"<profile><egl/>", "cut short", false, false},
        {std::string("\0<profile><egl/></profile>", 26), "a zero byte", false, false},
        {nested, "nested beyond what the parser takes", false, false},
    };
    for (const auto &[text, why, isRead, storesName] : rows) {
        DeviceProfile profile;
        EXPECT_EQ(readDeviceProfile(profile, text, anyName), isRead) << why;
        EXPECT_EQ(profile.name, storesName ? "any" : "") << why;
        EXPECT_TRUE(profile.configs.empty()) << why;
    }
    EXPECT_FALSE(isEsVersionAllowed(read("<profile><egl/></profile>"), 1, 1)) << "no default profile";
}

class ProfileFiles : public testing::Test {
protected:
    ProfileFiles() { std::filesystem::create_directories(directory); }
    ~ProfileFiles() override { std::filesystem::remove_all(directory); }

    void write(const char *name, const std::string &text) const { std::ofstream(directory / name) << text; }
    bool load(const char *name) {
        profile = DeviceProfile();
        return loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(name), &text);
    }

    const std::filesystem::path directory = std::filesystem::path(getenv("HOME")) / "profiles";
    DeviceProfile profile;
    std::string text = "as before";
};

TEST_F(ProfileFiles, AFileIsFoundByItsWholeNameUnlessOneIsEmbedded) {
    const std::string device = "<profile><egl><config id=\"9\"/></egl></profile>";
    for (const char *name : {"a device.xml", "TI PandaBoard"})
        write(name, device);
    EXPECT_FALSE(load("a device"));
    EXPECT_EQ(text, "as before");
    EXPECT_TRUE(load("a device.xml"));
    EXPECT_EQ(profile.name, "a device.xml");
    EXPECT_EQ(text, device);
    EXPECT_TRUE(load("TI PandaBoard"));
    EXPECT_EQ(profile.configs.size(), 10u);
}

TEST_F(ProfileFiles, WhatIsNoReadableProfileFails) {
    write("empty", "");
    write("cut", "<profile><egl>");
    std::filesystem::create_directory(directory / "folder");
    mkfifo((directory / "pipe").c_str(), 0600); // opening it would wait for ever
    for (const char *name : {"", "missing", "empty", "cut", "folder", "pipe", "../profiles/missing", "ti pandaboard"}) {
        EXPECT_FALSE(load(name)) << name;
        EXPECT_EQ(profile.name, "") << name;
    }
}

TEST_F(ProfileFiles, AHugeFileIsReadToItsEnd) {
    const std::string rubbish = "<extension>" + std::string(5000, '&') + "</extension>";
    std::string large = "<profile><egl>";
    for (int i = 0; large.size() < 50'000'000; ++i)
        large += "<config id=\"" + std::to_string(i % 7) + "\">" + rubbish + "</config>";
    write("large", large + "<config id=\"7\"/></egl></profile>");
    ASSERT_TRUE(load("large"));
    EXPECT_EQ(profile.configs.size(), 8u);
}

} // namespace
