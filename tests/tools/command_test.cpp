#include <gmock/gmock.h>

#include <sys/stat.h>

#include "support/golden.h"
#include "tools/run_command.h"

using testing::HasSubstr;

TEST(Command, ExitStatusAndWhatItSays) {
    // Run on the shell's words, so that a row can have quotes.
    const std::tuple<const char *, const char *, int, const char *> rows[] = {
#include "tools/data/commands.def"
    };
    ASSERT_EQ(mkfifo((homeDirectory() / "pipe").c_str(), 0600), 0);
    for (const auto &[name, arguments, status, part] : rows) {
        const CommandResult result = run(arguments);
        EXPECT_EQ(result.status, status) << name;
        EXPECT_THAT(result.output, HasSubstr(part)) << name;
    }
    unsetenv("DISPLAY");
    const CommandResult result = run("run -- true");
    EXPECT_EQ(result.status, 125);
    EXPECT_THAT(result.output, HasSubstr("there is no X server"));
}

TEST(Command, ProfilesCheckFindsEachFaultByItsLine) {
    const std::tuple<std::string, const char *, std::string> rows[] = {
#include "tools/data/profile_faults.def"
    };
    for (const auto &[old, replacement, finding] : rows) {
        std::string text = golden("../docs/example-profile.xml");
        writeFile(homeDirectory() / "phone", text.replace(text.find(old), old.size(), replacement));
        const CommandResult result = run("profiles check ~/phone");
        EXPECT_THAT(result.output, HasSubstr(finding));
        const bool isHarmless = finding.starts_with(": ") || finding.find("note: ") != std::string::npos;
        EXPECT_EQ(result.status, isHarmless ? 0 : 1) << finding;
    }
}
