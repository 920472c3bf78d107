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

using namespace egl;
using namespace std::string_literals;

const CKZRTString anyName("any");
constexpr auto absent = std::nullopt;

std::optional<int32_t> valueIn(const std::string &config, int32_t attribute) {
    DeviceProfile profile;
    EXPECT_TRUE(
        readDeviceProfile(profile, "<profile><egl><config id=\"1\">" + config + "</config></egl></profile>", anyName));
    int32_t value = 0;
    if (profile.configs.size() != 1 || !profile.configs.begin()->getAttribute(attribute, &value)) return absent;
    return value;
}

TEST(ProfileReader, ReadsEachElementByItsKind) {
#define ELEMENT(config, reason, attribute, value) EXPECT_EQ(valueIn(config, attribute), value) << reason << config;
#include "profiles/data/elements.def"
}

TEST(ProfileReader, TakesConfigsAndVersionsFromWhatIsAProfile) {
    using namespace capability;
    const std::tuple<std::string, const char *, bool, bool, std::vector<int32_t>, std::set<EsVersion>> rows[] = {
#define TEXT(...) {__VA_ARGS__},
#include "profiles/data/texts.def"
    };
    for (const auto &[text, why, isRead, storesName, ids, versions] : rows) {
        SCOPED_TRACE(why);
        DeviceProfile profile;
        EXPECT_EQ(readDeviceProfile(profile, text, anyName), isRead);
        EXPECT_EQ(profile.name, storesName ? "any" : "");
        EXPECT_EQ(profile.esVersions, versions);
        std::vector<int32_t> found;
        for (const Config &config : profile.configs) {
            found.push_back(config.attributeOr0(EGL_CONFIG_ID));
            EXPECT_EQ(config.attributeOr0(EGL_LEVEL), 0) << "not the first";
        }
        EXPECT_EQ(found, ids);
        EXPECT_EQ(isEsVersionAllowed(profile, 1, 1), !storesName || versions.contains(es1_1)) << "no default profile";
    }
    std::string nested; // deeper than the parser accepts
    for (int i = 0; i < 100000; ++i)
        nested += "<profile>";
    DeviceProfile profile;
    EXPECT_FALSE(readDeviceProfile(profile, nested, anyName));
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
    write("a device.xml", device);
    write("TI PandaBoard", device);
    write("cut", "<profile><egl>");
    mkfifo((directory / "pipe").c_str(), 0600); // opening it would block
    EXPECT_FALSE(load("missing"));
    EXPECT_EQ(text, "as before");
    for (const char *name : {"", "a device", "cut", ".", "pipe", "ti pandaboard"}) {
        EXPECT_FALSE(load(name)) << name;
        EXPECT_EQ(profile.name, "") << name;
    }
    EXPECT_TRUE(load("a device.xml"));
    EXPECT_EQ(profile.name, "a device.xml");
    EXPECT_EQ(text, device);
    EXPECT_TRUE(load("TI PandaBoard"));
    EXPECT_EQ(profile.configs.size(), 10u);
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
