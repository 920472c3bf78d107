// Reports where the reader of a profile does not do what its text seems to say.
#pragma once

#include <string>
#include <string_view>

#include "tools/profiles/profile_findings.h"

// fileName is the name that selects the profile.
[[nodiscard]] ProfileFindings checkProfile(std::string_view text, const std::string &fileName);
