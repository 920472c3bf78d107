// The lines about failed calls that a user sees.
#include <gmock/gmock.h>

#include <sstream>

#include "support/display.h"
#include "tools/run_command.h"

namespace {

struct Row {
    const char *what;
    const char *words; // for run and for the asker
    std::vector<std::string> lines;
};

// The lines that begin with "zelvane: ", without that.
std::vector<std::string> linesOfCommand(const std::string &output) {
    constexpr std::string_view head = "zelvane: ";
    std::vector<std::string> found;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(head)) found.push_back(line.substr(head.size()));
    return found;
}

} // namespace

TEST(Refusals, AreSaidOnceAndOnlyWhereNothingSucceededLater) {
    SKIP_WITHOUT_DISPLAY();
    const Row rows[] = {
#include "tools/data/refusals.def"
    };
    for (const Row &row : rows)
        EXPECT_EQ(linesOfCommand(run(std::string("run ") + row.words).output), row.lines) << row.what;
    // Without zelvane run the library prints nothing about them.
    const std::string alone = shell(ASKER " choose=0x3025:99 context=3.7 window=0").output;
    EXPECT_THAT(alone, testing::Not(testing::HasSubstr("refused")));
}
