#include <gtest/gtest.h>

#include "capability/collect_system_report.h"
#include "capability/scripted_host.h"
#include "support/golden.h"
#include "tools/report/formats.h"

using namespace tools;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

capability::SystemReport collected(const ScriptedHost &host) {
    capability::SystemReport report;
    capability::SystemReportFiller filler(report);
    capability::collectSystemReport(host.library, windowSystem, filler);
    return report;
}

const capability::HostIdentity identity{"A vendor", "", "4.2 of it"};

} // namespace

TEST(Report, TextTellsWhatHoldsBackWhat) {
    const ScriptedHost scripted("4.2", "GL_ARB_gpu_shader5 GL_ARB_sample_shading");
    const auto answers = askAboutVersions(*capability::probeEsGate(scripted.library, windowSystem));
    EXPECT_EQ(reportAsText(identity, collected(scripted), answers, false), golden("tools/data/report.txt"));
}

TEST(Report, JsonTellsWhatStrictModeRefuses) {
    const ScriptedHost scripted("4.1", "GL_ARB_ES3_compatibility");
    const auto answers = askAboutVersions(*capability::probeEsGate(scripted.library, windowSystem));
    EXPECT_EQ(reportAsJson(identity, collected(scripted), answers, true), golden("tools/data/report.json"));
}
