#include <gtest/gtest.h>

#include "capability/collect_system_report.h"
#include "capability/format_system_report.h"
#include "capability/scripted_host.h"
#include "fakes/every_extension.h"
#include "tools/report_formats.h"

using namespace tools;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

capability::SystemReport collected(const ScriptedHost &host) {
    capability::SystemReport report;
    capability::SystemReportFiller filler(report);
    capability::collectSystemReport(host.library, windowSystem, filler);
    return report;
}

} // namespace

TEST(Report, TellsWhatHoldsBackWhat) {
    const ScriptedHost host("4.2", "GL_ARB_gpu_shader5 GL_ARB_sample_shading");
    const auto report = collected(host);
    const auto answers = askAboutVersions(host.library, windowSystem);
    EXPECT_TRUE(answers.carriesEs30);

    const auto text = reportAsText(report, answers, false);
    const auto plain = capability::formatSystemReport(report, false) + "\n";
    ASSERT_EQ(text.substr(0, plain.size()), plain);
    const auto rest = text.substr(plain.size());
    EXPECT_EQ(rest.rfind("OpenGL ES 1.1 request: OpenGL ES 1.1 in loose mode, OpenGL ES 1.1 in strict mode\n"
                         "OpenGL ES 2.0 request: OpenGL ES 3.0 in loose mode, OpenGL ES 3.0 in strict mode\n"
                         "OpenGL ES 3.0 request: OpenGL ES 3.0 in loose mode, OpenGL ES 3.0 in strict mode\n"
                         "OpenGL ES 3.1 request: OpenGL ES 3.1 in loose mode, refused in strict mode\n"
                         "OpenGL ES 3.2 request: OpenGL ES 3.2 in loose mode, refused in strict mode\n",
                         0),
              0u)
        << rest;
    EXPECT_NE(rest.find("\nHeld back in strict mode: OpenGL ES 3.1, 3.2\n"
                        "\tThis feature cannot be emulated on the host system: 'efficient image transfer'\n"
                        "\tOpenGL version must be at least 4.3\n"
                        "\tOR\n"
                        "\tThe following extensions must be supported: 'GL_ARB_copy_image'\n"),
              std::string::npos)
        << rest;
    EXPECT_EQ(rest.find("gpu_shader5"), std::string::npos);
}

TEST(Report, CompatibilityHoldsNothingBack) {
    const ScriptedHost host("4.1", "GL_ARB_ES3_compatibility");
    const auto answers = askAboutVersions(host.library, windowSystem);
    EXPECT_TRUE(answers.carriesEs30);
    EXPECT_EQ(answers.heldBack.at(capability::Feature::gpuShader5), (std::vector<capability::EsVersion>{4, 5}));
}

TEST(Report, JsonHasOneObject) {
    const ScriptedHost strong("4.6", everyExtension);
    const auto full = reportAsJson(collected(strong), askAboutVersions(strong.library, windowSystem), false);
    EXPECT_NE(full.find("{\"requested\": \"2.0\", \"loose\": \"3.2\", \"strict\": \"3.2\"}"), std::string::npos)
        << full;
    EXPECT_NE(full.find("\"heldBack\": []\n}\n"), std::string::npos) << full;

    const ScriptedHost weak("4.0", "GL_ARB_imaging");
    const auto lacking = reportAsJson(collected(weak), askAboutVersions(weak.library, windowSystem), true);
    EXPECT_NE(lacking.find("{\"requested\": \"3.0\", \"loose\": \"3.0\", \"strict\": null}"), std::string::npos);
    EXPECT_NE(
        lacking.find("{\"feature\": \"gpu_shader5\", \"versions\": [\"3.0\", \"3.1\", \"3.2\"], \"reason\": \"This "
                     "feature cannot be emulated on the host system: 'gpu_shader5'\\nThe following extensions must "
                     "be supported: 'GL_ARB_gpu_shader5'\"}"),
        std::string::npos)
        << lacking;
    EXPECT_NE(lacking.find("\"extensions\": [\"GL_ARB_imaging\"]\n}\n"), std::string::npos);
}
