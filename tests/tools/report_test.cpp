#include <gmock/gmock.h>

#include "capability/collect_system_report.h"
#include "capability/format_system_report.h"
#include "capability/scripted_host.h"
#include "fakes/every_extension.h"
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

TEST(Report, JsonHasOneObject) {
    const struct {
        const char *version, *extensions, *request, *end;
    } rows[] = {
        {"4.6", everyExtension, "{\"requested\": \"2.0\", \"loose\": \"3.2\", \"strict\": \"3.2\"}",
         "\"heldBack\": []\n}\n"},
        {"4.0", "GL_ARB_imaging", "{\"requested\": \"3.0\", \"loose\": \"3.0\", \"strict\": null}",
         "\"extensions\": [\"GL_ARB_imaging\"]\n}\n"},
        // Compatibility with ES 3.0 holds nothing of it back.
        {"4.1", "GL_ARB_ES3_compatibility",
         "{\"feature\": \"gpu_shader5\", \"versions\": [\"3.1\", \"3.2\"], \"reason\": \"This "
         "feature cannot be emulated on the host system: 'gpu_shader5'\\nThe following extensions must "
         "be supported: 'GL_ARB_gpu_shader5'\"}",
         "\"extensions\": [\"GL_ARB_ES3_compatibility\"]\n}\n"},
    };
    for (const auto &row : rows) {
        const ScriptedHost host(row.version, row.extensions);
        const auto json = reportAsJson(collected(host), askAboutVersions(host.library, windowSystem),
                                       row.extensions != everyExtension);
        EXPECT_THAT(json, AllOf(HasSubstr(row.request), EndsWith(row.end)));
    }
}
