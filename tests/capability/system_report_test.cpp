#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "capability/collect_system_report.h"
#include "capability/feature_sets.h"
#include "capability/format_system_report.h"
#include "capability/scripted_host.h"
#include "fakes/every_extension.h"

using namespace capability;

namespace {

const auto windowSystem = std::make_shared<glove::WSAPI>();

// A record as one line.
std::string lineOf(const ReportRecord &record) {
    std::ostringstream line;
    line << reportRecordType(record);
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

std::string fileText(const std::string &path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

SystemReport collected(const ScriptedHost &host, SystemReportFiller::Forward forward = {}) {
    SystemReport report;
    SystemReportFiller filler(report, std::move(forward));
    collectSystemReport(host.library, windowSystem, filler);
    return report;
}

const std::string goldenDirectory = ZELVANE_SOURCE_DIR "/tests/capability/golden/";

} // namespace

TEST(CollectSystemReport, SendsEachFactInOrder) {
    std::vector<std::string> lines;
    collected(ScriptedHost("4.2", "GL_EXT_draw_buffers2 GL_ARB_imaging"),
              [&](const ReportRecord &record) { lines.push_back(lineOf(record)); });

    ASSERT_EQ(lines.size(), 1u + 642 + 41 + 63 + 32 + 23 + 1);
    EXPECT_EQ(lines[0], "14 15");
    for (HostExtension id = 1; id <= hostExtensionCount; ++id) {
        const bool isPresent = id == 1 || id == hostExtensionFromName("GL_EXT_draw_buffers2");
        EXPECT_EQ(lines[id], "15 " + std::to_string(id) + (isPresent ? " 1" : " 0"));
    }
    // The rest as one text, made from the tables apart.
    std::string rest;
    for (size_t index = 643; index < lines.size(); ++index)
        rest += lines[index] + "\n";
    EXPECT_EQ(rest, fileText(goldenDirectory + "4.2_records.txt"));
}

TEST(CollectSystemReport, ExtensionsAreThoseOfTheModel) {
    const char *const names = "GL_ARB_sync GL_ARB_texture_storage_multisample GL_of_nobody GL_ARB_sync";
    for (const char *version : {"4.6", "3.0", "2.1", "5.0", static_cast<const char *>(nullptr)}) {
        for (const char *directory : {"", "no_stringi"}) {
            const ScriptedHost host(version, names, directory);
            const auto report = collected(host);
            const EsBaseFeatures base(host.library);
            for (HostExtension id = 1; id <= hostExtensionCount; ++id)
                EXPECT_EQ(report.extensions.at(id), hostHasExtensionId(base.view(), id)) << hostExtensionName(id);
        }
    }
}

TEST(FormatSystemReport, TextIsTheSameToTheByte) {
    const auto lacksTwo = everyExtensionBut({"GL_ARB_sample_shading", "GL_ARB_shader_image_load_store"});
    const struct {
        const char *version, *extensions, *file;
    } rows[] = {
        {"4.1", lacksTwo.c_str(), "4.1_lacks_two.txt"},
        {"4.0", "", "4.0_bare.txt"},
        {"2.1",
         "GL_ARB_sync GL_EXT_framebuffer_object GL_ARB_occlusion_query2 GL_ARB_texture_storage_multisample "
         "GL_ARB_map_buffer_range",
         "2.1_text.txt"},
    };
    for (const auto &row : rows) {
        const ScriptedHost host(row.version, row.extensions);
        EXPECT_EQ(formatSystemReport(collected(host), false), fileText(goldenDirectory + row.file)) << row.file;
    }
}

TEST(FormatSystemReport, ExtensionsFollowInTheirOrder) {
    const auto report = collected(ScriptedHost("4.6", "GL_ARB_multisample GL_of_nobody GL_ARB_imaging"));
    EXPECT_EQ(formatSystemReport(report, true),
              formatSystemReport(report, false) +
                  "Supported OpenGL Extensions:\n\tGL_ARB_imaging\n\tGL_ARB_multisample\n");
}

TEST(SystemReportFiller, KeepsWhatWentThroughTheRecords) {
    SystemReport report;
    int forwarded = 0;
    SystemReportFiller filler(report, [&](const ReportRecord &) { ++forwarded; });
    const std::string longName(600, 'n');
    const char *const name = longName.c_str();
    const ReportRecord records[] = {
        FeatureRecord{name, false},
        FeatureRecord{name, true},
        FeatureAlternativeRecord{name, 13, {5, 6, 0, 7}},
        EsRequirementRecord{2, name},
        EsRequirementRecord{2, name},
        EsRequirementRecord{2, "nobody"},
        EndRecord{},
        GlVersionRecord{14},
    };
    for (const auto &record : records)
        filler.receive(record);
    EXPECT_EQ(forwarded, 7) << "nothing passes after the end";
    EXPECT_EQ(report.glVersion, 0);
    ASSERT_EQ(report.features.size(), 1u);
    const auto &[kept, feature] = *report.features.begin();
    EXPECT_EQ(kept, std::string(511, 'n')) << "cut in the record";
    EXPECT_FALSE(feature->available) << "the first record wins";
    EXPECT_EQ(feature->alternatives.at(0).extensions, (std::vector<HostExtension>{5, 6}));
    EXPECT_EQ(buildSection(report, report.esRequirements, 2, "two").missing.size(), 2u)
        << "repeats stay, and the unknown one is passed over";
}
