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
