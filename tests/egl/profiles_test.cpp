// What a client sees of a device profile that the preferences file chooses.
#include <filesystem>
#include <fstream>

#include "egl/fixture.h"

namespace {

void prefer(const std::string &pairs) {
    const std::filesystem::path directory = std::filesystem::path(getenv("HOME")) / ".kzrconfig" / "Tarnwell Graphics";
    std::filesystem::create_directories(directory);
    std::ofstream(directory / "com.tarnlight.Zelvane.plist")
        << "<plist version=\"1.0\"><dict><key>Zelvane 6.31</key><dict>" << pairs << "</dict></dict></plist>";
}

std::string string(const char *key, const std::string &value) {
    return std::string("<key>") + key + "</key><string>" + value + "</string>";
}

// The directory of profiles that the cases write their files to.
std::string profilesDirectory() {
    const std::string directory = std::string(getenv("HOME")) + "/profiles";
    std::filesystem::create_directories(directory);
    return directory;
}

void writeProfile(const char *name, const std::string &text) {
    std::ofstream(profilesDirectory() + "/" + name) << text;
}

void choose(const std::string &name) {
    prefer(string("profiles_directory", profilesDirectory()) + string("current_profile", name));
}

class Profiles : public EntryTest {
protected:
    std::vector<EGLConfig> configs() {
        EGLint count = 0;
        EXPECT_TRUE(eglGetConfigs(initialised(), nullptr, 0, &count));
        std::vector<EGLConfig> found(count);
        EXPECT_TRUE(eglGetConfigs(initialised(), found.data(), count, &count));
        return found;
    }
    EGLint attribute(EGLConfig config, EGLint name) {
        EGLint value = -1;
        EXPECT_TRUE(eglGetConfigAttrib(initialised(), config, name, &value)) << name;
        return value;
    }
    bool makesContext(EGLConfig config, EGLint major) {
        const EGLint attributes[] = {EGL_CONTEXT_CLIENT_VERSION, major, EGL_NONE};
        return eglCreateContext(initialised(), config, EGL_NO_CONTEXT, attributes) != EGL_NO_CONTEXT;
    }
};

} // namespace

TEST_F(Profiles, AnEmbeddedOneGivesConfigsVersionsAndItsText) {
    choose("Generic Tarnlight T330");
    EXPECT_EQ(configs().size(), 22u);
    for (EGLint major = 1; major <= 3; ++major)
        EXPECT_EQ(makesContext(configs().back(), major) || makesContext(configs().front(), major), major != 2) << major;
    const EGLint major3[] = {EGL_CONTEXT_CLIENT_VERSION, 3, EGL_NONE};
    EXPECT_SUCCEEDS(
        eglMakeCurrent(m_display, nullptr, nullptr, eglCreateContext(m_display, configs()[0], nullptr, major3)));
    const std::string text = backEnd().profileText;
    EXPECT_NE(text.find("Tarnlight T330"), std::string::npos);
    EXPECT_TRUE(text.ends_with("</profile>\n"));
}

TEST_F(Profiles, WithoutOneBackEndsGetAnEmptyText) {
    prefer(string("current_profile", "TI PandaBoard")); // which needs a directory, though it is embedded
    current();
    EXPECT_STREQ(backEnd().profileText, "");
}

TEST_F(Profiles, AFileGivesItsConfigsValueForValue) {
    writeProfile("mine", "<profile><egl><config id=\"4\"><red_size>7</red_size><samples>3</samples>"
                         "<renderable_type>EGL_OPENGL_ES_BIT</renderable_type>"
                         "<renderable_type>EGL_OPENGL_ES2_BIT</renderable_type>"
                         "<max_pbuffer><width>99</width></max_pbuffer></config></egl><es version=\"2\"/></profile>");
    choose("mine");
    const std::vector<EGLConfig> all = configs();
    ASSERT_EQ(all.size(), 2u) << "a list without config 1 gets one of defaults in front";
    EXPECT_EQ(attribute(all[1], EGL_CONFIG_ID), 4);
    EXPECT_EQ(attribute(all[1], EGL_RED_SIZE), 7);
    EXPECT_EQ(attribute(all[1], EGL_SAMPLES), 3);
    EXPECT_EQ(attribute(all[1], EGL_MIN_SWAP_INTERVAL), 1000);
    EGLint value = -7;
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglGetConfigAttrib(initialised(), all[1], EGL_MAX_PBUFFER_WIDTH, &value));
    EXPECT_EQ(value, -7);

    EXPECT_TRUE(makesContext(all[1], 2));
    const EGLint major1[] = {EGL_CONTEXT_CLIENT_VERSION, 1, EGL_NONE};
    EXPECT_FAILS(EGL_BAD_MATCH, eglCreateContext(initialised(), all[1], EGL_NO_CONTEXT, major1));
}

TEST_F(Profiles, ABrokenOneFailsTheLoadWithoutAWordUntilItIsMended) {
    choose("mine");
    const auto expectSilentFailure = [](const char *why) {
        testing::internal::CaptureStderr();
        EXPECT_FAILS(EGL_SUCCESS, eglGetDisplay(EGL_DEFAULT_DISPLAY));
        EXPECT_FAILS(EGL_NOT_INITIALIZED, eglInitialize(nullptr, nullptr, nullptr));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << why;
    };
    expectSilentFailure("no such file");
    for (const char *text : {"", "<profile><egl>", "<profile/>", "<device><egl/></device>"}) {
        writeProfile("mine", text);
        expectSilentFailure(text);
    }
    writeProfile("mine", "<profile><egl/></profile>");
    EXPECT_EQ(configs(), std::vector<EGLConfig>{nullptr}) << "the list's own config, which has no id";
}
