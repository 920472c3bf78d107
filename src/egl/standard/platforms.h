// The platforms that desktop clients can use; devices accept any.
#pragma once

#include <cstdint>

#include "egl/egl_api.h"

namespace egl::standard {

// Stands for the native display of EGL_PLATFORM_SURFACELESS_MESA; its address is none that an application can pass.
constexpr uint64_t surfacelessDisplay = ~uint64_t{0};

// The error of a display request, EGL_SUCCESS for none. A null list is an empty one.
[[nodiscard]] EGLint platformDisplayError(EGLenum platform, const void *nativeDisplay, const EGLint *attributes);

} // namespace egl::standard
