#include <gmock/gmock.h>

#include <sys/stat.h>

#include "support/display.h"
#include "support/golden.h"
#include "tools/run_command.h"

using testing::HasSubstr;

namespace {

// A shell parses the words of the command, so that a row can contain quotes.
struct Row {
    const char *what;
    const char *words;
    int status;
    const char *part;
};

void expectEach(std::initializer_list<Row> rows) {
    for (const Row &row : rows) {
        const CommandResult result = run(row.words);
        EXPECT_EQ(result.status, row.status) << row.what;
        EXPECT_THAT(result.output, HasSubstr(row.part)) << row.what;
    }
}

} // namespace

TEST(Command, ExitStatusAndWhatItSays) {
    ASSERT_EQ(mkfifo((homeDirectory() / "pipe").c_str(), 0600), 0);
    expectEach({
#include "tools/data/commands.def"
    });
    unsetenv("DISPLAY");
    expectEach({{"no server", "run -- true", 125, "there is no X server"}});
}

TEST(Command, RunEndsAsItsProgramOrSaysWhyNot) {
    SKIP_WITHOUT_DISPLAY();
    expectEach({
#include "tools/data/run_commands.def"
    });
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
