// The platform's host OpenGL library.
#pragma once

// Null when there is none. Never closed.
[[nodiscard]] void *openHostLibrary();
// A function that the library has but does not export, or null. library is the open one.
[[nodiscard]] void *unexportedFunction(void *library, const char *name);
