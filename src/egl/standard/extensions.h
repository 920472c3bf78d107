// What desktop clients are told of: only what works for them.
#pragma once

#include "egl/display.h"

namespace egl::standard {

// Of eglQueryString without a display.
[[nodiscard]] const char *clientExtensions();
// With one that is initialised. The text lives as long as the process. Any thread.
[[nodiscard]] const char *displayExtensions(const Display &display);

} // namespace egl::standard
