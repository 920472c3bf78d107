#include <gmock/gmock.h>

#include "tools/run_command.h"

namespace {

using testing::HasSubstr;
using testing::Not;

const std::string example = ZELVANE_SOURCE_DIR "/docs/example-profile.xml";

std::string keyAndString(const std::string &key, const std::string &value) {
    // What stands between key and value is the writer's layout.
    return "<key>" + key + "</key>\\s*<string>" + value + "</string>";
}

TEST(ProfileVerbs, StatusAndMessageOfBadInput) {
    const struct {
        const char *arguments;
        int status;
        const char *message;
    } cases[] = {
        {"", 2, "subcommand"},
        {"use", 2, "name or --none"},
        {"use --none name", 2, "excludes"},
        {"use nothing", 1, "\"nothing\" is none of the built-in profiles, and no profiles directory is set"},
        {"use x --directory /nowhere", 1, "\"/nowhere\" is no directory"},
        {"strict maybe", 2, "maybe"},
        {"profiles show nothing", 1, "no readable profile \"nothing\""},
        {"profiles show", 2, "name"},
        {"profiles check /nowhere", 1, "\"/nowhere\" is no readable file"},
        {"profiles check /", 1, "\"/\" is no readable file"},
        {"--help", 0, "Exit status: 0 done, 1"},
        {"use --help", 0, "Exit status: 0 done, 1"},
    };
    for (const auto &row : cases) {
        const CommandResult result = run(row.arguments);
        EXPECT_EQ(result.status, row.status) << row.arguments;
        EXPECT_THAT(result.output, HasSubstr(row.message)) << row.arguments;
    }
    EXPECT_THAT(contentsOf(preferencesFile()), Not(HasSubstr("profile"))) << "nothing was stored";
}

TEST(ProfileVerbs, UseChoosesAndKeepsEveryOtherKey) {
    writeFile(preferencesFile(), "<plist version=\"1.0\"><dict><key>Zelvane 6.30</key><dict><key>current_profile</key>"
                                 "<string>old</string></dict><key>Zelvane 6.31</key><dict><key>gui_font</key>"
                                 "<string>Some Font</string><key>radeon_hd_hack</key><true/></dict></dict></plist>");
    CommandResult result = run("use 'TI PandaBoard'");
    EXPECT_EQ(result.status, 0);
    const std::string directory = (homeDirectory() / ".kzrconfig/Tarnwell Graphics/profiles").string();
    EXPECT_THAT(result.output, HasSubstr("profiles directory: now " + directory + "; none was set"));
    EXPECT_TRUE(std::filesystem::is_directory(directory));
    std::string stored = contentsOf(preferencesFile());
    EXPECT_THAT(stored, testing::ContainsRegex(keyAndString("current_profile", "TI PandaBoard")));
    EXPECT_THAT(stored, testing::ContainsRegex(keyAndString("profiles_directory", directory)));
    EXPECT_THAT(stored, testing::ContainsRegex(keyAndString("current_profile", "old")));
    EXPECT_THAT(stored, testing::ContainsRegex(keyAndString("gui_font", "Some Font")));
    EXPECT_THAT(stored, testing::ContainsRegex("<key>radeon_hd_hack</key>\\s*<true/>"));

    result = run("use 'Lenovo K900'");
    EXPECT_THAT(result.output, Not(HasSubstr("directory"))) << "one is set now";
    result = run("use --none");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.output, HasSubstr("profile: none; it was Lenovo K900"));
    stored = contentsOf(preferencesFile());
    EXPECT_THAT(stored, Not(HasSubstr("K900")));
    EXPECT_THAT(stored, testing::ContainsRegex(keyAndString("gui_font", "Some Font")));
    EXPECT_THAT(stored, testing::ContainsRegex(keyAndString("profiles_directory", directory)));
    EXPECT_EQ(run("use --none").status, 0);
}

TEST(ProfileVerbs, UseTakesAFileOfADirectory) {
    writeFile(homeDirectory() / "mine/phone", contentsOf(example));
    writeFile(homeDirectory() / "mine/broken", "<profile/>");
    EXPECT_EQ(run("use phone").status, 1);
    EXPECT_EQ(run("use broken --directory \"$HOME/mine\"").status, 1);
    EXPECT_EQ(contentsOf(preferencesFile()).find("mine"), std::string::npos);
    EXPECT_EQ(run("use phone --directory \"$HOME/mine\"").status, 0);
    const CommandResult list = run("profiles");
    EXPECT_THAT(list.output, testing::ContainsRegex("\\* phone +2.0, 3.0 +2  file"));
    EXPECT_THAT(list.output, HasSubstr("in force: phone"));
    EXPECT_THAT(list.output, HasSubstr("other files in the profiles directory: 1"));

    writeFile(homeDirectory() / "mine/phone", "");
    EXPECT_THAT(run("profiles").output, HasSubstr("in force: \"phone\", which cannot be read"));
}

TEST(ProfileVerbs, UseTellsOfTheVariablesDirectory) {
    setenv("ZELVANE_PROFILE_PATH", "/usr", 1);
    EXPECT_THAT(run("use 'Lenovo A750'").output, HasSubstr("now /usr, from ZELVANE_PROFILE_PATH"));
    EXPECT_THAT(contentsOf(preferencesFile()), testing::ContainsRegex(keyAndString("profiles_directory", "/usr")));
}

TEST(ProfileVerbs, ListTellsWhatIsNotRead) {
    writeFile(preferencesFile(), "<plist version=\"1.0\"><dict><key>Zelvane 6.31</key><dict><key>current_profile</key>"
                                 "<string>TI PandaBoard</string></dict></dict></plist>");
    const CommandResult list = run("profiles");
    EXPECT_THAT(list.output, HasSubstr("\"TI PandaBoard\" is chosen, but"));
    EXPECT_THAT(list.output, Not(HasSubstr("* TI")));
    EXPECT_THAT(list.output, testing::ContainsRegex("  Generic Tarnlight T330 +1.x, 3.0 +22  built in"));
}

TEST(ProfileVerbs, ShowGivesWhatProgramsSee) {
    const CommandResult shown = run("profiles show 'Google Nexus Player'");
    EXPECT_EQ(shown.status, 0);
    EXPECT_THAT(shown.output, HasSubstr("configs: 28\n"));
    EXPECT_THAT(shown.output, HasSubstr("es 3, extensions: 50\n"));
    EXPECT_THAT(shown.output, HasSubstr("  max_viewport_dims: width 8192 height 8192\n"));
    EXPECT_THAT(shown.output, HasSubstr("name RGBA8 samples 8"));
    // Says EGL_TRUE for its conformant configs, which is no bit.
    EXPECT_THAT(run("profiles show 'TI PandaBoard'").output,
                testing::ContainsRegex("   1 +32 +8 8 8 8 +24 +8 +0 +no +window,pbuffer,pixmap +es1,es2 +- "));
}

TEST(ProfileVerbs, StrictIsSwitched) {
    EXPECT_EQ(run("strict").output, "strict context mode is off\n");
    EXPECT_EQ(run("strict on").output, "strict context mode is on\n");
    EXPECT_THAT(contentsOf(preferencesFile()), testing::ContainsRegex("<key>strict_context_mode</key>\\s*<true/>"));
    EXPECT_EQ(run("strict off").output, "strict context mode is off\n");
    EXPECT_EQ(run("strict").output, "strict context mode is off\n");
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
