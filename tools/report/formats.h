// The two forms in which `zelvane report` prints.
#pragma once

#include <string>

#include "capability/system_report.h"
#include "tools/report/version_answers.h"

namespace tools {

[[nodiscard]] std::string reportAsText(const capability::SystemReport &report, const VersionAnswers &answers,
                                       bool withExtensions);
// One object; every name in it is plain ASCII.
[[nodiscard]] std::string reportAsJson(const capability::SystemReport &report, const VersionAnswers &answers,
                                       bool withExtensions);

// Why the feature is missing, in words.
[[nodiscard]] std::string failureOf(capability::Feature feature);

} // namespace tools
