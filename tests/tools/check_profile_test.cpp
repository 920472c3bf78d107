#include <gmock/gmock.h>

#include <cstring>

#include "tools/run_command.h"

namespace {

using testing::HasSubstr;

const std::string example = ZELVANE_SOURCE_DIR "/docs/example-profile.xml";

CommandResult check(const std::string &text, const std::string &name = "phone") {
    const auto file = homeDirectory() / "files" / name;
    writeFile(file, text);
    return run("profiles check '" + file.string() + "'");
}

TEST(CheckProfile, FindsEachFaultByItsLine) {
    const struct {
        const char *old, *replacement, *finding; // the finding stands behind the file's name
    } cases[] = {
        {"", "", ": reads as it looks\n"},
        {"</profile>", "", ":2: no well-formed XML: "},
        {"</egl>", "</egl><egl/>", ":49: only the first egl is read"},
        {"</egl>", "<es/></egl>", ":49: es is no element of egl: ignored"},
        {"</profile>", "</profile>\n<more/>", ":63: more behind the profile is ignored"},
        {"id=\"2\"", "id=\"1\"", ":29: config id 1 is taken"},
        {"id=\"2\"", "number=\"2\"", ":29: config has no id: it reads as 0"},
        {"id=\"1\"", "id=\"3\"", ":5: no config has the id 1"},
        {"<red_size>8<", "<red_size>8 bits<", ":8: red_size \"8 bits\" reads as 8"},
        {"<red_size>8<", "<red_size>99999999999<", ":8: red_size \"99999999999\" reads as "},
        {"<red_size>", "<red_size>5</red_size>\n<red_size>", ":8: red_size stands again further down"},
        {"<red_size>", "<colour><level>1</level></colour><red_size>", ":8: level inside colour counts"},
        {"<red_size>", "<transparency/><red_size>", ":8: note: transparency is never read"},
        {"rgba>EGL_TRUE<", "rgba>1<", ":21: bind_to_texture_rgba \"1\" reads as EGL_FALSE"},
        {">EGL_PBUFFER_BIT<", ">1<", ":27: surface_type \"1\" is no bit that is known: ignored"},
        {"<surface_type>EGL_WINDOW_BIT</surface_type>\n        </config>", "</config>",
         ":29: config ends up without a "},
        {"version=\"3\"", "version=\"4\"", ":57: es has the version \"4\": ignored"},
        {"version=\"3\"", "version=\"3.1\"", ":57: version \"3.1\" reads as 3"},
        {"<renderer>", "<device>D</device><renderer>", ":3: note: device names built-in profiles only"},
    };
    const std::string whole = contentsOf(example);
    for (const auto &row : cases) {
        std::string text = whole;
        const size_t place = text.find(row.old);
        ASSERT_NE(place, std::string::npos) << row.old;
        const CommandResult result = check(text.replace(place, std::string(row.old).size(), row.replacement));
        EXPECT_THAT(result.output, HasSubstr(row.finding));
        const bool isHarmless = *row.finding == ':' && row.finding[1] == ' ';
        EXPECT_EQ(result.status, isHarmless || strstr(row.finding, "note: ") ? 0 : 1) << row.finding;
    }
}

TEST(CheckProfile, FindsWhatIsNoProfileOrHidden) {
    EXPECT_THAT(check("").output, HasSubstr(":1: no well-formed XML"));
    EXPECT_THAT(check("<device/>").output, HasSubstr(":1: there is no root element profile"));
    EXPECT_THAT(check("<profile>\n<es version=\"2\"/></profile>").output, HasSubstr(":1: profile has no egl"));
    const CommandResult hidden = check(contentsOf(example), "TI PandaBoard");
    EXPECT_EQ(hidden.status, 1);
    EXPECT_THAT(hidden.output, HasSubstr(":2: a built-in profile has the name \"TI PandaBoard\" and hides this file"));
}

} // namespace
