#include <gmock/gmock.h>

#include <cstring>

#include "tools/run_command.h"

namespace {

using testing::HasSubstr;

const std::string example = ZELVANE_SOURCE_DIR "/docs/example-profile.xml";

TEST(CheckProfile, FindsEachFaultByItsLine) {
    const struct {
        const char *old, *replacement, *finding;
    } cases[] = {
#include "tools/data/profile_faults.def"
    };
    const std::string whole = contentsOf(example);
    for (const auto &row : cases) {
        std::string text = whole;
        const size_t place = text.find(row.old);
        ASSERT_NE(place, std::string::npos) << row.old;
        writeFile(homeDirectory() / "phone", text.replace(place, std::string(row.old).size(), row.replacement));
        const CommandResult result = run("profiles check ~/phone");
        EXPECT_THAT(result.output, HasSubstr(row.finding));
        const bool isHarmless = *row.finding == ':' && row.finding[1] == ' ';
        EXPECT_EQ(result.status, isHarmless || strstr(row.finding, "note: ") ? 0 : 1) << row.finding;
    }
}

} // namespace
