// The journal of a process: one JSON object per line about its EGL and GL calls, in the file that ZELVANE_JOURNAL
// names. docs/journal.md describes the lines. Several processes may share a file.
#pragma once

#include <nlohmann/json_fwd.hpp>

namespace journal {

using Json = nlohmann::ordered_json;

// The format version; it changes when the meaning of a field changes, or when one is removed.
inline constexpr int schemaVersion = 1;

// Whether a journal is written. The first call opens the file; a failure to open it is reported once, and there is no
// journal then, as in a privileged process. Any thread.
[[nodiscard]] bool isOn();

// Writes a line at once: event, time, process and thread, then the fields. Does nothing without a journal. Text that is
// not UTF-8 gets replacement characters. Any thread.
void write(const char *event, const Json &fields);

} // namespace journal
