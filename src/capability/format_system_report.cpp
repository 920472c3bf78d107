#include "capability/format_system_report.h"

#include <array>
#include <cctype>

namespace capability {

namespace {

struct SectionRow {
    int32_t key;
    const char *name;
};

constexpr auto sectionRows = std::to_array<SectionRow>({
#define REPORT_SECTION(key, name) {key, name},
#include "capability/data/report_sections.def"
#undef REPORT_SECTION
});

std::string verdict(const std::string &name, bool isSupported) {
    return name + ": " + (isSupported ? "yes" : "no") + "\n";
}

std::string extensionLines(const SystemReport &report) {
    std::string text = "Supported OpenGL Extensions:\n";
    for (const auto &[extension, isPresent] : report.extensions) {
        if (isPresent) text += std::string("\t") + hostExtensionName(extension) + "\n";
    }
    return text;
}

} // namespace

SystemReportSection buildSection(const SystemReport &report,
                                 const std::map<int32_t, std::vector<std::string>> &requirements, int32_t key,
                                 const std::string &name) {
    SystemReportSection section{name, {}, {}};
    const auto required = requirements.find(key);
    if (required == requirements.end()) return section;
    for (const auto &featureName : required->second) {
        const auto feature = report.features.find(featureName);
        if (feature == report.features.end()) continue;
        (feature->second->available ? section.supported : section.missing).push_back(feature->second);
    }
    return section;
}

std::string formatExtensionList(std::span<const HostExtension> extensions) {
    std::string text;
    for (const auto extension : extensions)
        text += (text.empty() ? std::string() : ", ") + hostExtensionName(extension);
    return text;
}

std::string formatAlternative(const SystemReport::Alternative &alternative) {
    std::string text;
    if (alternative.minVersion > gl1_0) {
        text = std::string("OpenGL ") + glVersionName(alternative.minVersion);
        if (!alternative.extensions.empty()) text += " + ";
    }
    return text + formatExtensionList(alternative.extensions) + "\n";
}

std::string formatFeature(const SystemReport::Feature &feature, size_t indent) {
    std::string name = feature.name;
    if (!name.empty()) name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));

    const std::string deeper(indent + 1, '\t');
    std::string text = std::string(indent, '\t') + name + "\n" + deeper + "Requires";
    text += feature.alternatives.size() > 1 ? " either: " : ": ";
    bool isFirst = true;
    for (const auto &alternative : feature.alternatives) {
        if (!isFirst) text += deeper + "or: ";
        text += formatAlternative(alternative);
        isFirst = false;
    }
    return text + "\n";
}

std::string formatMissingFeatures(std::span<const SystemReportSection> sections) {
    std::string text;
    for (const auto &section : sections) {
        if (section.missing.empty()) continue;
        text += "Missing features required for " + section.name + ":\n";
        for (const auto &feature : section.missing)
            text += formatFeature(*feature, 1);
    }
    return text;
}

std::string formatSystemReport(const SystemReport &report, bool withExtensions) {
    std::string text = std::string("OpenGL Version: ") + glVersionName(report.glVersion) + "\n\n";
    std::vector<SystemReportSection> kept;

    // An unsupported version excludes all higher ones, even those whose features are all available.
    bool isHeldBack = false;
    for (const auto &row : sectionRows) {
        kept.push_back(buildSection(report, report.esRequirements, row.key, row.name));
        isHeldBack = isHeldBack || !kept.back().missing.empty();
        text += verdict(row.name, !isHeldBack);
    }
    text += "\n";

    // Supported extensions are not listed.
    for (const auto &[extension, features] : report.esExtensionRequirements) {
        const auto name = std::string(esExtensionName(extension, false)) + " support";
        auto section = buildSection(report, report.esExtensionRequirements, extension, name);
        if (section.missing.empty()) continue;
        text += verdict(name, false);
        kept.push_back(std::move(section));
    }
    text += "\n" + formatMissingFeatures(kept);
    return withExtensions ? text + extensionLines(report) : text;
}

} // namespace capability
