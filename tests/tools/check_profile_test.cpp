#include <gmock/gmock.h>

#include <cstring>

#include "tools/run_command.h"

namespace {

using testing::HasSubstr;

const std::string example = ZELVANE_SOURCE_DIR "/docs/example-profile.xml";

CommandResult check(const std::string &text, const std::string &name = "phone") {
    const auto file = homeDirectory() / "files" / name;
    writeFile(file, text);
    return run("profiles check '" + file.string() + "'");
}

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
        const CommandResult result = check(text.replace(place, std::string(row.old).size(), row.replacement));
        EXPECT_THAT(result.output, HasSubstr(row.finding));
        const bool isHarmless = *row.finding == ':' && row.finding[1] == ' ';
        EXPECT_EQ(result.status, isHarmless || strstr(row.finding, "note: ") ? 0 : 1) << row.finding;
    }
}

TEST(CheckProfile, FindsWhatIsNoProfileOrHidden) {
    EXPECT_THAT(check("").output, HasSubstr(":1: no well-formed XML"));
    EXPECT_THAT(check("<device/>").output, HasSubstr(":1: there is no root element profile"));
    EXPECT_THAT(check("<profile>\n<es version=\"2\"/></profile>").output, HasSubstr(":1: profile has no egl"));
    const CommandResult hidden = check(contentsOf(example), "TI PandaBoard");
    EXPECT_EQ(hidden.status, 1);
    EXPECT_THAT(hidden.output, HasSubstr(":2: a built-in profile has the name \"TI PandaBoard\" and hides this file"));
}

} // namespace
