// Shell sessions: commands after "$ ", their output without empty lines, and their exit status if it is not 0.
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "support/display.h"
#include "support/golden.h"
#include "tools/run_command.h"

namespace {

class Session : public testing::TestWithParam<const char *> {};

} // namespace

TEST_P(Session, GoesAsWritten) {
    if (GetParam() == std::string("run")) SKIP_WITHOUT_DISPLAY();
    setenv("DATA", TESTS_DIRECTORY "/tools/data", 1);
    setenv("PREFERENCES", preferencesFile().c_str(), 1);
    const std::string session = golden(std::string("tools/data/") + GetParam() + ".session");
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

INSTANTIATE_TEST_SUITE_P(, Session, testing::Values("diff", "doctor", "import", "run", "use"));
