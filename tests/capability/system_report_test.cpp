#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

#include "capability/collect_system_report.h"
#include "capability/feature_sets.h"
#include "capability/format_system_report.h"
#include "capability/scripted_host.h"
#include "egl/report_message.h"
#include "fakes/every_extension.h"
#include "support/file_text.h"

using namespace capability;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

// A record as one line.
std::string lineOf(const ReportRecord &record) {
    std::ostringstream line;
    line << egl::reportMessage(record).header.type;
    if (const auto *glVersion = std::get_if<GlVersionRecord>(&record)) line << " " << glVersion->version;
    if (const auto *extension = std::get_if<ExtensionRecord>(&record))
        line << " " << extension->extension << " " << extension->isPresent;
    if (const auto *feature = std::get_if<FeatureRecord>(&record))
        line << " " << feature->feature.str() << " " << feature->isAvailable;
    if (const auto *alternative = std::get_if<FeatureAlternativeRecord>(&record)) {
        line << " " << alternative->feature.str() << " " << alternative->minVersion;
        for (const auto id : alternative->extensions)
            line << " " << hostExtensionName(id);
    }
    if (const auto *required = std::get_if<EsRequirementRecord>(&record))
        line << " " << required->section << " " << required->feature.str();
    if (const auto *required = std::get_if<EsExtensionRequirementRecord>(&record))
        line << " " << required->extension << " " << required->feature.str();
    return line.str();
}

SystemReport collected(const ScriptedHost &host, SystemReportFiller::Forward forward = {}) {
    SystemReport report;
    SystemReportFiller filler(report, std::move(forward));
    collectSystemReport(host.library, windowSystem, filler);
    return report;
}

const std::string data = ZELVANE_SOURCE_DIR "/tests/capability/data/";

} // namespace

TEST(CollectSystemReport, SendsEachFactInOrder) {
    std::string records; // all records, generated from the tables independently
    collected(ScriptedHost("4.2", "GL_EXT_draw_buffers2 GL_ARB_imaging"),
              [&](const ReportRecord &record) { records += lineOf(record) + "\n"; });
    EXPECT_EQ(records, fileText(data + "4.2_records.txt"));
}

TEST(FormatSystemReport, TextIsTheSameToTheByte) {
    const std::tuple<const char *, std::string, const char *> rows[] = {
        {"4.1", everyExtensionBut({"GL_ARB_sample_shading", "GL_ARB_shader_image_load_store"}), "4.1_lacks_two.txt"},
        {"4.0", "", "4.0_bare.txt"},
        {"2.1",
         "GL_ARB_sync GL_EXT_framebuffer_object GL_ARB_occlusion_query2 GL_ARB_texture_storage_multisample "
         "GL_ARB_map_buffer_range",
         "2.1_text.txt"},
    };
    for (const auto &[version, extensions, file] : rows)
        EXPECT_EQ(formatSystemReport(collected(ScriptedHost(version, extensions.c_str())), false),
                  fileText(data + file));
    const auto report = collected(ScriptedHost("4.6", "GL_ARB_multisample GL_of_nobody GL_ARB_imaging"));
    EXPECT_EQ(formatSystemReport(report, true),
              formatSystemReport(report, false) +
                  "Supported OpenGL Extensions:\n\tGL_ARB_imaging\n\tGL_ARB_multisample\n");
}

TEST(SystemReportFiller, KeepsWhatWentThroughTheRecords) {
    SystemReport report;
    int forwarded = 0;
    SystemReportFiller filler(report, [&](const ReportRecord &) { ++forwarded; });
    const std::string name(600, 'n');
    filler.receive(FeatureRecord{name.c_str(), false});
    filler.receive(FeatureRecord{name.c_str(), true});
    filler.receive(FeatureAlternativeRecord{name.c_str(), 13, {5, 6, 0, 7}});
    filler.receive(EsRequirementRecord{2, name.c_str()});
    filler.receive(EsRequirementRecord{2, name.c_str()});
    filler.receive(EsRequirementRecord{2, "nobody"});
    filler.receive(EndRecord{});
    filler.receive(GlVersionRecord{14});
    EXPECT_EQ(forwarded, 7) << "nothing passes after the end";
    const auto &[kept, feature] = *report.features.begin();
    EXPECT_EQ(kept, std::string(511, 'n')) << "cut in the record";
    EXPECT_FALSE(feature->available) << "the first record wins";
    EXPECT_EQ(feature->alternatives.at(0).extensions, (std::vector<HostExtension>{5, 6}));
    EXPECT_EQ(buildSection(report, report.esRequirements, 2, "two").missing.size(), 2u)
        << "repeats stay, and the unknown one is passed over";
}
