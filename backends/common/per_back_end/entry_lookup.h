// From a name to the function that serves it: an override of this library, or the host's own, without a wrapper.
#pragma once

#include <string_view>

// What zvGetExtProcAddress gives: a name of the back end's ES that the current context's host can carry, or a debug
// name. Null otherwise, also for names of desktop OpenGL that ES lacks.
[[nodiscard]] void *lookUpEntry(std::string_view name);

// For the exported plain names, which are resolved once for the process: as above, whatever the current context
// carries. Null only when the host has no OpenGL.
[[nodiscard]] void *resolveExport(std::string_view name);

// Each back end defines it: whether the name is one of its ES that the current context's host can carry. Without a
// context the host is not asked.
[[nodiscard]] bool servesEntry(std::string_view name);
