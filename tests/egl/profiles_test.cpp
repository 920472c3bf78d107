// The effects of a device profile that the preferences file selects.
#include <filesystem>
#include <fstream>

#include "egl/fixture.h"

namespace {

class Profiles : public EntryTest {
protected:
    void writeProfile(const std::string &text) {
        std::filesystem::create_directories(directory);
        std::ofstream(directory + "/mine") << text;
    }
    void choose(const std::string &name) {
        prefer("<key>profiles_directory</key><string>" + directory + "</string>" + chosen(name));
    }
    static std::string chosen(const std::string &name) {
        return "<key>current_profile</key><string>" + name + "</string>";
    }
    std::vector<EGLConfig> configs() {
        EGLint count = 0;
        std::vector<EGLConfig> found(100);
        EXPECT_TRUE(eglGetConfigs(initialised(), found.data(), 100, &count));
        found.resize(count);
        return found;
    }
    EGLContext contextOn(EGLConfig config, EGLint major) { return create({EGL_CONTEXT_CLIENT_VERSION, major}, config); }

    const std::string directory = std::string(getenv("HOME")) + "/profiles";
};

} // namespace

TEST_F(Profiles, AnEmbeddedOneGivesConfigsVersionsAndItsText) {
    choose("Generic Tarnlight T330");
    const auto all = configs();
    ASSERT_THAT(all, SizeIs(22));
    for (EGLint major = 1; major <= 3; ++major)
        EXPECT_EQ(contextOn(all.back(), major) || contextOn(all.front(), major), major != 2) << major;
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, contextOn(all[0], 3)));
    EXPECT_THAT(backEnd().profileText, AllOf(HasSubstr("Tarnlight T330"), EndsWith("</profile>\n")));
    EXPECT_EQ(backEnd().profilesDirectory, directory);
}

TEST_F(Profiles, WithoutOneBackEndsGetAnEmptyText) {
    prefer(chosen("TI PandaBoard")); // requires a directory although it is embedded
    current();
    EXPECT_STREQ(backEnd().profileText, "");
}

TEST_F(Profiles, AFileGivesItsConfigsValueForValue) {
    writeProfile(golden("egl/data/profile_of_a_file.xml"));
    choose("mine");
    const auto all = configs();
    ASSERT_THAT(all, SizeIs(2)) << "a list without config 1 gets one of defaults in front";
    EGLint value = -7;
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglGetConfigAttrib(m_display, all[1], EGL_MAX_PBUFFER_WIDTH, &value));
    EXPECT_EQ(value, -7);
    for (const auto &[attribute, expected] :
         {std::pair(EGL_CONFIG_ID, 4), {EGL_RED_SIZE, 7}, {EGL_SAMPLES, 3}, {EGL_MIN_SWAP_INTERVAL, 1000}}) {
        EXPECT_SUCCEEDS(eglGetConfigAttrib(m_display, all[1], attribute, &value));
        EXPECT_EQ(value, expected) << attribute;
    }
    EXPECT_FAILS(EGL_BAD_MATCH, contextOn(all[1], 1));
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, contextOn(all[1], 2)));
    EXPECT_EQ(backEnd().createdWith.esMajor, 2) << "not raised on a config without ES 3";
}

TEST_F(Profiles, AConfigWithoutPbuffersIsNamedBeforeAWrongAttribute) {
    writeProfile("<profile><egl><config id=\"2\"><surface_type>EGL_WINDOW_BIT</surface_type></config></egl></profile>");
    choose("mine");
    const EGLint wrong[] = {EGL_RENDER_BUFFER, EGL_BACK_BUFFER, EGL_NONE};
    EXPECT_FAILS(EGL_BAD_MATCH, eglCreatePbufferSurface(initialised(), configs().back(), wrong));
}

TEST_F(Profiles, ABrokenOneFailsTheLoadUntilItIsMended) {
    choose("mine");
    std::string words = "(Error) failed to load device profile 'mine' from " + directory + "\n"; // printed once
    for (const char *text : {"no file yet", "", "<profile><egl>", "<profile/>", "<device><egl/></device>"}) {
        if (text != std::string("no file yet")) writeProfile(text);
        EXPECT_EQ(errorsOf([] { EXPECT_FAILS(EGL_SUCCESS, eglGetDisplay(EGL_DEFAULT_DISPLAY)); }), words) << text;
        words.clear();
    }
    writeProfile("<profile><egl/></profile>");
    EXPECT_THAT(configs(), ElementsAre(nullptr)) << "the list's own config, which has no id";
    const EGLint wanted[] = {EGL_CONFIG_ID, 7, EGL_NONE};
    EGLint count = 0;
    EXPECT_SUCCEEDS(eglChooseConfig(m_display, wanted, nullptr, 0, &count));
    EXPECT_EQ(count, 1) << "without an id it answers any id";
}
