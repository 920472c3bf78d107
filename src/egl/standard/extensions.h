// The extensions that are advertised to desktop clients: only those that work for them.
#pragma once

#include "egl/display.h"

namespace egl::standard {

// The client extensions, for eglQueryString without a display.
[[nodiscard]] const char *clientExtensions();
// The extensions of an initialised display. The string lives as long as the process. Any thread.
[[nodiscard]] const char *displayExtensions(const Display &display);

} // namespace egl::standard
