// The host's OpenGL library, opened once for the process and never closed: applications hold its function pointers.
// Any thread.
#pragma once

// The host's function, or null. A non-null result does not mean that the host supports it: its loader has a stub for
// nearly any name. host_features.h reports support.
[[nodiscard]] void *hostFunction(const char *name);
