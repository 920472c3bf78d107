#include <gtest/gtest.h>

#include "run_command.h"

namespace {

// Run on the shell's words, so that a row can have quotes.
const struct {
    const char *name;
    const char *arguments; // of zelvane
    int status;
    const char *output; // a part of it
} rows[] = {
#include "tools/data/runs.def"
};

} // namespace

TEST(Run, StandsInForTheProgramOrSaysWhyNot) {
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const CommandResult result = run(row.arguments);
        EXPECT_EQ(result.status, row.status) << result.output;
        EXPECT_NE(result.output.find(row.output), std::string::npos) << result.output;
    }
    unsetenv("DISPLAY");
    const CommandResult result = run("run -- true");
    EXPECT_EQ(result.status, 125);
    EXPECT_NE(result.output.find("there is no X server"), std::string::npos) << result.output;
}

TEST(Run, PreferencesOfOneRunLeaveTheUsersAlone) {
    EXPECT_EQ(run("strict off").status, 0);
    std::string text = contentsOf(preferencesFile());
    text.insert(text.rfind("</dict>"), "<key>unknown</key><string>kept</string>");
    writeFile(preferencesFile(), text);

    const CommandResult result =
        run("run --strict --profile 'Amazon Kindle Fire' -- sh -c 'echo $ZELVANE_PREFERENCES_DIRECTORY; "
            "cat $ZELVANE_PREFERENCES_DIRECTORY/*.plist'");
    for (const char *part : {"kept", "Amazon Kindle Fire", "<true"})
        EXPECT_NE(result.output.find(part), std::string::npos) << part << " in " << result.output;
    EXPECT_EQ(contentsOf(preferencesFile()), text);
    EXPECT_FALSE(std::filesystem::exists(result.output.substr(0, result.output.find('\n'))));
}

TEST(Run, BackEndsOfAnotherDirectoryGoFirst) {
    const auto directory = homeDirectory() / "other";
    writeFile(directory / "libGLESv2.so.2", "");
    const CommandResult result =
        run("run --backends " + directory.string() +
            " -- sh -c 'cd ${LD_LIBRARY_PATH%%:*} && readlink libGLESv2.so.2 libGLESv2.so libEGL.so'");
    const std::string given = (directory / "libGLESv2.so.2").string();
    EXPECT_EQ(result.output.find(given + "\n" + given + "\n"), 0u) << result.output;
    EXPECT_NE(result.output.find("/libEGL.so.1\n"), std::string::npos) << result.output;
}
