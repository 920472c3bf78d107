#include <gmock/gmock.h>

#include "tools/run_command.h"

namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

const std::string example = ZELVANE_SOURCE_DIR "/docs/example-profile.xml";

// What stands between key and value is the writer's layout.
auto hasPair(const std::string &key, const std::string &value) {
    return ContainsRegex("<key>" + key + "</key>\\s*" + value);
}
std::string preferred(const std::string &pairs) {
    return "<plist version=\"1.0\"><dict><key>Zelvane 6.30</key><dict><key>current_profile</key>"
           "<string>old</string></dict><key>Zelvane 6.31</key><dict>" +
           pairs + "</dict></dict></plist>";
}

TEST(ProfileVerbs, StatusAndMessageOfBadInput) {
    const struct {
        const char *arguments;
        int status;
        const char *message;
    } cases[] = {
#include "tools/data/bad_input.def"
    };
    for (const auto &row : cases) {
        const CommandResult result = run(row.arguments);
        EXPECT_EQ(result.status, row.status) << row.arguments;
        EXPECT_THAT(result.output, HasSubstr(row.message)) << row.arguments;
    }
    EXPECT_THAT(contentsOf(preferencesFile()), Not(HasSubstr("profile"))) << "nothing was stored";
}

TEST(ProfileVerbs, UseChoosesAndKeepsEveryOtherKey) {
    writeFile(preferencesFile(), preferred("<key>gui_font</key><string>Some Font</string>"
                                           "<key>radeon_hd_hack</key><true/>"));
    const std::string directory = (homeDirectory() / ".kzrconfig/Tarnwell Graphics/profiles").string();
    const auto keepsOthers =
        AllOf(hasPair("profiles_directory", "<string>" + directory), hasPair("current_profile", "<string>old<"),
              hasPair("gui_font", "<string>Some Font<"), hasPair("radeon_hd_hack", "<true/>"));
    CommandResult result = run("use 'TI PandaBoard'");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("profiles directory: now " + directory + "; none was set"));
    EXPECT_TRUE(std::filesystem::is_directory(directory));
    EXPECT_THAT(contentsOf(preferencesFile()),
                AllOf(hasPair("current_profile", "<string>TI PandaBoard<"), keepsOthers));
    EXPECT_THAT(run("use 'Lenovo K900'").output, Not(HasSubstr("directory"))) << "one is set now";
    EXPECT_THAT(run("use --none").output, HasSubstr("profile: none; it was Lenovo K900"));
    EXPECT_THAT(contentsOf(preferencesFile()), AllOf(Not(HasSubstr("K900")), keepsOthers));
    EXPECT_EQ(run("use --none").status, 0);
}

TEST(ProfileVerbs, UseTakesAFileOfADirectory) {
    writeFile(homeDirectory() / "mine/phone", contentsOf(example));
    writeFile(homeDirectory() / "mine/broken", "<profile/>");
    EXPECT_EQ(run("use phone").status, 1);
    EXPECT_EQ(run("use broken --directory \"$HOME/mine\"").status, 1);
    EXPECT_EQ(contentsOf(preferencesFile()).find("mine"), std::string::npos);
    EXPECT_EQ(run("use phone --directory \"$HOME/mine\"").status, 0);
    EXPECT_THAT(run("profiles").output,
                AllOf(ContainsRegex("\\* phone +2.0, 3.0 +2  file"), HasSubstr("in force: phone"),
                      HasSubstr("other files in the profiles directory: 1")));
    writeFile(homeDirectory() / "mine/phone", "");
    EXPECT_THAT(run("profiles").output, HasSubstr("in force: \"phone\", which cannot be read"));
}

TEST(ProfileVerbs, ListTellsWhatIsNotRead) {
    writeFile(preferencesFile(), preferred("<key>current_profile</key><string>TI PandaBoard</string>"));
    EXPECT_THAT(run("profiles").output, AllOf(HasSubstr("\"TI PandaBoard\" is chosen, but"), Not(HasSubstr("* TI")),
                                              ContainsRegex("  Generic Tarnlight T330 +1.x, 3.0 +22  built in")));
    setenv("ZELVANE_PROFILE_PATH", "/usr", 1);
    EXPECT_THAT(run("use 'Lenovo A750'").output, HasSubstr("now /usr, from ZELVANE_PROFILE_PATH"));
}

TEST(ProfileVerbs, ShowGivesWhatProgramsSee) {
    EXPECT_THAT(run("profiles show 'Google Nexus Player'").output,
                AllOf(HasSubstr("configs: 28\n"), HasSubstr("es 3, extensions: 50\n"),
                      HasSubstr("  max_viewport_dims: width 8192 height 8192\n"), HasSubstr("name RGBA8 samples 8")));
    // Says EGL_TRUE for its conformant configs, which is no bit.
    EXPECT_THAT(run("profiles show 'TI PandaBoard'").output,
                ContainsRegex("   1 +32 +8 8 8 8 +24 +8 +0 +no +window,pbuffer,pixmap +es1,es2 +- "));
}

TEST(ProfileVerbs, StrictIsSwitched) {
    EXPECT_EQ(run("strict").output, "strict context mode is off\n");
    EXPECT_EQ(run("strict on").output, "strict context mode is on\n");
    EXPECT_THAT(contentsOf(preferencesFile()), hasPair("strict_context_mode", "<true/>"));
    EXPECT_EQ(run("strict off").output, "strict context mode is off\n");
}

TEST(ProfileVerbs, AFileThatDoesNotParseIsLeftAlone) {
    const std::string broken = "<plist version=\"1.0\"><dict><key>a</key><string>kept</string><key></dict></plist>";
    writeFile(preferencesFile(), broken);
    for (const char *arguments : {"use 'TI PandaBoard'", "use --none", "strict on", "profiles"}) {
        const CommandResult result = run(arguments);
        EXPECT_EQ(result.status, 1) << arguments;
        EXPECT_THAT(result.output, HasSubstr(preferencesFile().string())) << arguments;
        EXPECT_EQ(contentsOf(preferencesFile()), broken) << arguments;
    }
}

} // namespace
