// The platforms that desktop clients find; devices take any.
#pragma once

#include <cstdint>

#include "egl/egl_api.h"

namespace egl::standard {

// Stands for the native display of EGL_PLATFORM_SURFACELESS_MESA: no address of an application's.
constexpr uint64_t surfacelessDisplay = ~uint64_t{0};

// The error of a request for a display, EGL_SUCCESS for none. A null list is an empty one.
[[nodiscard]] EGLint platformDisplayError(EGLenum platform, const void *nativeDisplay, const EGLint *attributes);

} // namespace egl::standard
