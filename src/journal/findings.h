// The problems that the journal finds in a program's calls: each is written when it first occurs and counted from then
// on. Any thread.
#pragma once

#include <cstdint>
#include <string>

#include "journal/journal.h"

namespace journal {

// Use of a missing capability. what: "function", "enumerant", "compressedFormat", "limit". name: of the capability.
void findLacking(const char *what, const std::string &name, const std::string &call, const Json &details);
// arguments: the call's, as a text.
void findGlError(const std::string &call, uint32_t error, const std::string &arguments);

// All findings with counts, for the last line.
[[nodiscard]] Json countedFindings();

} // namespace journal
