// The journals of programs that zelvane run starts.
#include <gmock/gmock.h>

#include <set>
#include <tuple>

#include <nlohmann/json.hpp>

#include "support/display.h"
#include "tools/run_command.h"

using Json = nlohmann::json;
using testing::Contains;
using testing::HasSubstr;

namespace {

std::vector<Json> linesOf(const std::filesystem::path &path) {
    std::vector<Json> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        lines.push_back(Json::parse(line));
    return lines;
}

// The lines of an event, or its only line.
std::vector<Json> linesOf(const std::vector<Json> &lines, const std::string &event) {
    std::vector<Json> found;
    for (const Json &line : lines)
        if (line["event"] == event) found.push_back(line);
    return found;
}

using Lacking = std::tuple<std::string, std::string, std::string>;

Lacking lackingOf(const Json &json) {
    return {json["what"], json["name"], json["call"]};
}

} // namespace

TEST(Journal, TellsWhatAProgramUsesThatItsDeviceLacks) {
    SKIP_WITHOUT_DISPLAY();
    std::set<Lacking> expected;
    std::map<Lacking, int> counts;
#define LACKING(what, name, call, count)                                                                               \
    expected.insert({what, name, call});                                                                               \
    counts[{what, name, call}] = count;
#include "tools/data/lacking.def"
    const std::string alone = run("run --profile 'TI PandaBoard' " USES_LACKING).output;
    // With an argument the program is killed; its findings are still in the journal.
    for (const std::string word : {"", " die"}) {
        const auto file = homeDirectory() / ("journal" + word.substr(0, 1));
        const auto result = run("run --profile 'TI PandaBoard' --journal '" + file.string() + "' " USES_LACKING + word);
        EXPECT_EQ(result.output, alone) << "the program sees its errors as without a journal";
        const auto lines = linesOf(file);
        std::set<Lacking> found;
        for (const Json &line : linesOf(lines, "lacking"))
            found.insert(lackingOf(line));
        EXPECT_EQ(found, expected);
        EXPECT_EQ(linesOf(lines, "frame").size(), 1u);
        const auto errors = linesOf(lines, "glError");
        ASSERT_FALSE(errors.empty());
        EXPECT_EQ(errors.back()["call"], "glUniform4f");
        EXPECT_EQ(errors.back()["arguments"], "0, 1.5, 2, 3, 4");
        const auto ends = linesOf(lines, "end");
        ASSERT_EQ(ends.size(), word.empty() ? 1u : 0u);
        for (const Json &end : ends)
            for (const Json &finding : end["lacking"])
                EXPECT_EQ(finding["count"], counts[lackingOf(finding)]) << finding;
        EXPECT_EQ(lines.front()["device"], "TI PandaBoard");
    }
}

TEST(Journal, TellsChoicesContextsAndRefusalsOfSeveralProcesses) {
    SKIP_WITHOUT_DISPLAY();
    const auto result = shell("cd; zelvane run --profile 'Google Nexus Player' --journal shared sh -c '" ASKER
                              " choose=0x3025:99 choose context=3.1 context=2.0 window=7 & " ASKER " choose; wait'");
    EXPECT_THAT(result.output, HasSubstr("eglCreateWindowSurface refused"));
    const auto lines = linesOf(homeDirectory() / "shared");
    EXPECT_EQ(linesOf(lines, "start").size(), 2u);
    const auto contexts = linesOf(lines, "context"), refusals = linesOf(lines, "refusal");
    ASSERT_EQ(contexts.size(), 1u);
    EXPECT_EQ(contexts[0]["granted"], "2.0");
    ASSERT_EQ(refusals.size(), 3u);
    EXPECT_EQ(refusals[0]["rule"], "noConfig");
    EXPECT_EQ(refusals[1]["rule"], "versionBeyondDevice");
    EXPECT_EQ(refusals[1]["help"], "try --profile Desktop");
    EXPECT_EQ(refusals[2]["rule"], "unknownWindow");
    const auto choices = linesOf(lines, "choice");
    ASSERT_EQ(choices.size(), 3u);
    for (const Json &choice : choices)
        EXPECT_EQ(choice["order"].size() + choice["fallenOut"].size(), 28u) << "each config has its place";
}

TEST(Journal, FileThatCannotBeOpenedGivesALineAndNoJournal) {
    SKIP_WITHOUT_DISPLAY();
    const auto result = run("run --journal /nowhere/journal " ASKER " choose context=2.0");
    EXPECT_EQ(result.output, "(Error) There is no journal: \"/nowhere/journal\" cannot be opened: No such file or "
                             "directory\n");
}
