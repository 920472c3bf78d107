#include <gmock/gmock.h>

#include "capability/collect_system_report.h"
#include "capability/format_system_report.h"
#include "capability/scripted_host.h"
#include "tools/report_formats.h"

using namespace tools;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

capability::SystemReport collected(const ScriptedHost &host) {
    capability::SystemReport report;
    capability::SystemReportFiller filler(report);
    capability::collectSystemReport(host.library, windowSystem, filler);
    return report;
}

} // namespace

TEST(Report, TextTellsWhatHoldsBackWhat) {
    const ScriptedHost host("4.2", "GL_ARB_gpu_shader5 GL_ARB_sample_shading");
    const auto report = collected(host);
    const auto text = reportAsText(report, askAboutVersions(host.library, windowSystem), false);
    EXPECT_THAT(text, StartsWith(capability::formatSystemReport(report, false) +
                                 "\n"
                                 "OpenGL ES 1.1 request: OpenGL ES 1.1 in loose mode, OpenGL ES 1.1 in strict mode\n"
                                 "OpenGL ES 2.0 request: OpenGL ES 3.0 in loose mode, OpenGL ES 3.0 in strict mode\n"
                                 "OpenGL ES 3.0 request: OpenGL ES 3.0 in loose mode, OpenGL ES 3.0 in strict mode\n"
                                 "OpenGL ES 3.1 request: OpenGL ES 3.1 in loose mode, refused in strict mode\n"
                                 "OpenGL ES 3.2 request: OpenGL ES 3.2 in loose mode, refused in strict mode\n"));
    EXPECT_THAT(text, HasSubstr("\nHeld back in strict mode: OpenGL ES 3.1, 3.2\n"
                                "\tThis feature cannot be emulated on the host system: 'efficient image transfer'\n"
                                "\tOpenGL version must be at least 4.3\n"
                                "\tOR\n"
                                "\tThe following extensions must be supported: 'GL_ARB_copy_image'\n"));
}

TEST(Report, JsonTellsWhatStrictModeRefuses) {
    const ScriptedHost host("4.1", "GL_ARB_ES3_compatibility");
    EXPECT_THAT(reportAsJson(collected(host), askAboutVersions(host.library, windowSystem), true),
                AllOf(HasSubstr(R"({"requested": "3.0", "loose": "3.0", "strict": "3.0"})"),
                      HasSubstr(R"({"requested": "3.1", "loose": "3.1", "strict": null})"),
                      HasSubstr(R"({"feature": "gpu_shader5", "versions": ["3.1", "3.2"], "reason": "This feature )"),
                      EndsWith("\"extensions\": [\"GL_ARB_ES3_compatibility\"]\n}\n")));
}
