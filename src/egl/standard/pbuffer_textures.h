// eglBindTexImage for desktop clients.
#pragma once

#include "egl/context.h"
#include "egl/egl_api.h"
#include "egl/surface.h"

namespace egl::standard {

// Copies the contents of the pbuffer to the texture that is bound in the current context, whatever the context draws to
// and reads from. Returns the error: EGL_BAD_MATCH for a pbuffer that the host cannot bind to the context.
[[nodiscard]] EGLint copyPbufferToTexture(const Context &current, Surface &pbuffer);

} // namespace egl::standard
