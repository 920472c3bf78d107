// What the journal finds in a program's calls, each kind of finding written when it first comes and counted from then
// on. Any thread.
#pragma once

#include <cstdint>
#include <string>

#include "journal/journal.h"

namespace journal {

// Use of what the device lacks. what: "function", "enumerant", "compressedFormat", "limit". name: of the thing.
void findLacking(const char *what, const std::string &name, const std::string &call, const Json &details);
// arguments: the call's, as a text.
void findGlError(const std::string &call, uint32_t error, const std::string &arguments);

// All that was found, with counts, for the last line.
[[nodiscard]] Json countedFindings();

} // namespace journal
