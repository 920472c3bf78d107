// The host's OpenGL library, opened by name and searched by name. A name that it lacks is null.
#pragma once

#include "foundation/dynamic_library.h"

namespace host {

// Searches the directory of this library, then the system's library directories. May be empty: check isLoaded().
[[nodiscard]] DynamicLibrary openHostOpenGLLibrary();
// Prefers the library that exports no OpenGL functions, only GLX, which returns them.
[[nodiscard]] DynamicLibrary openPlainHostOpenGLLibrary();

} // namespace host
