// The host's GLX. Its functions are looked up in the host's library: a call by name would reach the libGL.so.1 of
// desktop programs, which returns no current context while an EGL context is current.
#pragma once

#include <GL/glx.h>

namespace host::platform::x11 {

struct Glx {
#define GLX_FUNCTION(field, function) decltype(&::function) field;
#include "host/platform/x11/data/glx_functions.def"
#undef GLX_FUNCTION
};

// Complete, and constant except in tests, which replace functions. Any thread.
[[nodiscard]] Glx &glx();

// A function of an extension; null when the host lacks it.
template <typename Function>
[[nodiscard]] Function findGlxFunction(const char *name) {
    return reinterpret_cast<Function>(glx().procAddress(reinterpret_cast<const GLubyte *>(name)));
}

} // namespace host::platform::x11
