// The two output formats of `zelvane report`.
#pragma once

#include <string>

#include "capability/host_identity.h"
#include "capability/system_report.h"
#include "tools/report/version_answers.h"

namespace tools {

[[nodiscard]] std::string reportAsText(const capability::HostIdentity &host, const capability::SystemReport &report,
                                       const VersionAnswers &answers, bool withExtensions);
// One object; all names are plain ASCII.
[[nodiscard]] std::string reportAsJson(const capability::HostIdentity &host, const capability::SystemReport &report,
                                       const VersionAnswers &answers, bool withExtensions);

// Why the feature is missing, as text.
[[nodiscard]] std::string failureOf(capability::Feature feature);

} // namespace tools
