// Maps a name to the function that implements it: an override of this library, or the host's own, without a wrapper.
#pragma once

#include <string_view>

// The result of zvGetExtProcAddress: a name of the back end's ES that the current context's host supports, or a debug
// name. Null otherwise, also for names of desktop OpenGL that ES lacks.
[[nodiscard]] void *lookUpEntry(std::string_view name);

// For the exported plain names, which are resolved once for the process: as above, whatever the current context
// supports. Null only when the host has no OpenGL.
[[nodiscard]] void *resolveExport(std::string_view name);

// Defined by each back end: whether the name is one of its ES that the current context's host supports. Without a
// context the host is not queried.
[[nodiscard]] bool servesEntry(std::string_view name);
