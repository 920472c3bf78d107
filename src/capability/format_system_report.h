// The system report as text. On a terminal it is the only explanation of a failed context creation.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "capability/system_report.h"

namespace capability {

// One section of the text. Exists while the text is built.
struct SystemReportSection {
    std::string name;
    std::vector<std::shared_ptr<SystemReport::Feature>> supported;
    std::vector<std::shared_ptr<SystemReport::Feature>> missing;
};

// withExtensions adds the list of the host's extensions.
[[nodiscard]] std::string formatSystemReport(const SystemReport &report, bool withExtensions);

// Empty for a key without requirements. A feature that is required twice is listed twice, and one that the report
// does not know is skipped.
[[nodiscard]] SystemReportSection buildSection(const SystemReport &report,
                                               const std::map<int32_t, std::vector<std::string>> &requirements,
                                               int32_t key, const std::string &name);
[[nodiscard]] std::string formatMissingFeatures(std::span<const SystemReportSection> sections);
// indent: in tabs. Ends with an empty line.
[[nodiscard]] std::string formatFeature(const SystemReport::Feature &feature, size_t indent);
// Ends with a line feed.
[[nodiscard]] std::string formatAlternative(const SystemReport::Alternative &alternative);
[[nodiscard]] std::string formatExtensionList(std::span<const HostExtension> extensions);

} // namespace capability
