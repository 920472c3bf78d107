// The system report as text: the only explanation that a user in a terminal gets of a context that was refused.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "capability/system_report.h"

namespace capability {

// One heading of the text. Lives while the text is made.
struct SystemReportSection {
    std::string name;
    std::vector<std::shared_ptr<SystemReport::Feature>> supported;
    std::vector<std::shared_ptr<SystemReport::Feature>> missing;
};

// withExtensions adds the list of the host's extensions.
[[nodiscard]] std::string formatSystemReport(const SystemReport &report, bool withExtensions);

// Empty for a key without requirements. A feature that is required twice stands there twice, and one that the report
// does not know is passed over.
[[nodiscard]] SystemReportSection buildSection(const SystemReport &report,
                                               const std::map<int32_t, std::vector<std::string>> &requirements,
                                               int32_t key, const std::string &name);
[[nodiscard]] std::string formatMissingFeatures(std::span<const SystemReportSection> sections);
// indent: in tabs. Ends in an empty line.
[[nodiscard]] std::string formatFeature(const SystemReport::Feature &feature, size_t indent);
// Ends its line.
[[nodiscard]] std::string formatAlternative(const SystemReport::Alternative &alternative);
[[nodiscard]] std::string formatExtensionList(std::span<const HostExtension> extensions);

} // namespace capability
