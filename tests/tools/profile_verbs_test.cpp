#include <gmock/gmock.h>

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

} // namespace
