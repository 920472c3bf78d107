// The lab: its parts, and a complete run on two devices.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "support/display.h"
#include "support/file_text.h"
#include "tools/lab/page_template.h"
#include "tools/lab/verdict.h"
#include "tools/run_command.h"

using testing::HasSubstr;

TEST(PageTemplate, FillsHolesAndSections) {
    const Json values = {{"name", "<a & \"b\">\xFF"},
                         {"list", {{{"x", 1}}, {{"x", 2}, {"name", "own"}}}},
                         {"words", {"p", "q"}},
                         {"none", nullptr},
                         {"empty", Json::array()},
                         {"no", false},
                         {"zero", 0}};
    const std::pair<const char *, const char *> rows[] = {
        {"{{name}}", "&lt;a &amp; &quot;b&quot;&gt;\xEF\xBF\xBD"},
        {"{{#list}}[{{x}} {{name}}]{{/list}}", "[1 &lt;a &amp; &quot;b&quot;&gt;\xEF\xBF\xBD][2 own]"},
        {"{{#words}}{{.}};{{/words}}", "p;q;"},
        {"{{#none}}a{{/none}}{{^none}}b{{/none}}{{#empty}}c{{/empty}}{{#no}}d{{/no}}{{#missing}}e{{/missing}}", "b"},
        {"{{#zero}}{{zero}}{{/zero}}", "0"},
        {"{{#none}}{{#list}}x{{/list}}{{/none}}y", "y"},
        {"{{name", nullptr},
        {"{{#list}}", nullptr},
    };
    for (const auto &[text, filled] : rows) {
        if (filled) {
            EXPECT_EQ(fillTemplate(text, values), filled) << text;
        } else {
            EXPECT_THROW((void)fillTemplate(text, values), std::logic_error) << text;
        }
    }
}

TEST(Pictures, DifferWhereAChannelIsBeyondTheTolerance) {
    const Picture one{2, 1, {100, 100, 100, 0, 0, 0}};
    const auto nearly = differenceOf(one, {2, 1, {116, 84, 100, 0, 0, 0}});
    const auto other = differenceOf(one, {2, 1, {100, 117, 100, 0, 0, 0}});
    ASSERT_TRUE(nearly && other);
    EXPECT_EQ(nearly->pixels, 0u);
    EXPECT_EQ(other->share, 0.5);
    EXPECT_GT(other->picture.pixels[0], 100);
    EXPECT_FALSE(differenceOf(one, {1, 2, {0, 0, 0, 0, 0, 0}}));
    EXPECT_THAT(pngOf(one), HasSubstr("PNG"));
}

TEST(Verdict, FailsOnTheKindsThatAreAskedFor) {
    DeviceResult good;
    good.device = "good";
    good.hasContext = good.endedWell = true;
    good.frames = 1;
    good.picture = Picture{1, 1, {9, 9, 9}};
    std::vector<DeviceResult> results(6, good);
    results[1].endedWell = false;
    results[2].glErrors.resize(1);
    results[3].refusals = {{"a", "", "", "", true}, {"b", "", "", "", false}};
    results[4].lacking.resize(1);
    results[5].picture = Picture{1, 1, {99, 9, 9}};
    for (size_t kind = 0; kind < faultKinds().size(); ++kind) {
        judge(results, "good", {faultKinds()[kind]});
        for (size_t i = 0; i < results.size(); ++i)
            EXPECT_EQ(results[i].passes, i != kind + 1) << faultKinds()[kind] << i;
    }
    results[0].refusals = {{"a", "", "", "", true}};
    judge(results, "good", {"start", "refusal"});
    EXPECT_TRUE(results[0].passes) << "a later call succeeded";
}

TEST(Lab, ShowsWhatAProgramDoesOnEachDevice) {
    if (shell("command -v Xvfb").status != 0) GTEST_SKIP() << "no Xvfb";
    unsetenv("DISPLAY");
    const auto lab =
        shell("cd; zelvane lab --devices 'Desktop,TI PandaBoard,Generic Tarnlight T330' --frames 1 --out lab "
              "--jobs 2 " USES_LACKING);
    EXPECT_EQ(lab.status, 1) << lab.output;
    EXPECT_THAT(lab.output, HasSubstr("2 of 3 devices pass"));
    const auto directory = homeDirectory() / "lab";
    const Json devices = Json::parse(fileText(directory / "lab.json"))["devices"];
    ASSERT_EQ(devices.size(), 3u);
    EXPECT_EQ(devices[0]["esVersion"], "OpenGL ES 3.2");
    EXPECT_EQ(devices[1]["passes"], true);
    EXPECT_EQ(devices[1]["frames"], 1);
    EXPECT_EQ(devices[1]["lacking"].size(), 8u);
    EXPECT_EQ(devices[1]["picture"]["width"], 16);
    EXPECT_EQ(devices[1]["difference"]["pixels"], 0);
    EXPECT_EQ(devices[2]["hasContext"], false) << "a device of OpenGL ES 1 and 3";
    EXPECT_EQ(devices[2]["refusals"][0]["call"], "eglChooseConfig");
    EXPECT_THAT(fileText(directory / "TI-PandaBoard/picture.png"), testing::StartsWith("\x89PNG"));
    const std::string page = fileText(directory / "index.html"), junit = fileText(directory / "junit.xml");
    EXPECT_THAT(page, HasSubstr("alt=\"Last frame on TI PandaBoard, 16 by 16 pixels"));
    EXPECT_THAT(page, HasSubstr("glGenVertexArrays"));
    EXPECT_THAT(page, testing::Not(testing::AnyOf(HasSubstr("{{"), HasSubstr("http"), HasSubstr("<script"))))
        << "the page stands alone";
    EXPECT_THAT(junit, HasSubstr("tests=\"3\" failures=\"1\""));
    EXPECT_EQ(run("lab --devices Desktop --frames 1 --fail-on lacking --out ~/lab " USES_LACKING).status, 1);
    EXPECT_EQ(run("lab --devices Desktop --seconds 1 --out ~/lab " USES_LACKING).status, 0) << "ends on its own";
}
