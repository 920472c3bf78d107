// The host's OpenGL library, opened by name and looked up by name. A name that it lacks gives null.
#pragma once

#include "foundation/dynamic_library.h"

namespace host {

// Looks beside this library, then in the system's library directories. The result may hold nothing: ask isLoaded().
[[nodiscard]] DynamicLibrary openHostOpenGLLibrary();
// Prefers the one without the window system.
[[nodiscard]] DynamicLibrary openPlainHostOpenGLLibrary();

} // namespace host
