#include <gmock/gmock.h>

#include <regex>

#include "support/golden.h"
#include "tools/run_command.h"

namespace {

using testing::HasSubstr;
using testing::Not;

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

// A session is commands behind "$ ", what they say, and their exit status if it is none of success.
TEST(ProfileVerbs, SayAndDoWhatTheSessionHas) {
    setenv("DATA", TESTS_DIRECTORY "/tools/data", 1);
    setenv("PREFERENCES", preferencesFile().c_str(), 1);
    const std::string session = golden("tools/data/use.session");
    const std::regex home(homeDirectory().string());
    std::istringstream lines(session);
    std::string played;
    for (std::string line; std::getline(lines, line);) {
        const bool isCommand = line.starts_with("$ ");
        if (isCommand || line.empty() || line[0] == '#') played += line + '\n';
        if (!isCommand) continue;
        const CommandResult result = shell(line.substr(2));
        played += std::regex_replace(result.output, home, "HOME");
        if (result.status != 0) played += "exit status " + std::to_string(result.status) + '\n';
    }
    EXPECT_EQ(played, session);
}

} // namespace
