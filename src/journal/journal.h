// The journal of a process: one JSON object a line of what happens at the border of EGL, in the file that
// ZELVANE_JOURNAL names. docs/journal.md tells the lines. Several processes may share a file.
#pragma once

#include <nlohmann/json_fwd.hpp>

namespace journal {

using Json = nlohmann::ordered_json;

// Of the lines; it changes when the meaning of a field does, or when one goes.
inline constexpr int schemaVersion = 1;

// Whether one is kept. The first call opens the file; one that cannot be opened is told of once, and there is no
// journal then, as in a process with foreign rights. Any thread.
[[nodiscard]] bool isOn();

// Writes a line at once: event, time, process and thread, then the fields. Does nothing without a journal. Text that is
// no UTF-8 gets replacement characters. Any thread.
void write(const char *event, const Json &fields);

} // namespace journal
