// From a name to the function that serves it: an override of this library, or the host's own, without a wrapper.
#pragma once

#include <string_view>

// What zvGetExtProcAddress gives: a name of ES 2 or 3 that the current context's host can carry, or a debug name that
// forwards to the host. Null otherwise, also for names of desktop OpenGL that ES lacks.
[[nodiscard]] void *lookUpEntry(std::string_view name);

// For the exported plain names, which are resolved once for the process: as above, whatever the current context
// carries. Null only when the host has no OpenGL.
[[nodiscard]] void *resolveExport(std::string_view name);
