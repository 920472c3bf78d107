// The host's OpenGL library, opened once for the process and never closed: applications hold its function pointers.
// Any thread.
#pragma once

// The host's function, or null. A pointer says nothing about what the host can carry: its loader has a stub for nearly
// any name. host_features.h knows.
[[nodiscard]] void *hostFunction(const char *name);
