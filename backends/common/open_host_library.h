// The host's OpenGL library as this platform has it.
#pragma once

// Null when there is none. Never closed.
[[nodiscard]] void *openHostLibrary();
// A function that the library has and does not export, or null. library is the open one.
[[nodiscard]] void *unexportedFunction(void *library, const char *name);
