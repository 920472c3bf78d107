// The platforms that desktop clients can use. Devices accept any platform.
#pragma once

#include <cstdint>

#include "egl/egl_api.h"

namespace egl::standard {

// The native display value of EGL_PLATFORM_SURFACELESS_MESA: no application can pass this address.
constexpr uint64_t surfacelessDisplay = ~uint64_t{0};

// The error of a display request, EGL_SUCCESS for none. A null list is an empty one.
[[nodiscard]] EGLint platformDisplayError(EGLenum platform, const void *nativeDisplay, const EGLint *attributes);

} // namespace egl::standard
