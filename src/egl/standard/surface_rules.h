// The surface rules of the EGL standard, which apply to desktop clients in place of a device's.
#pragma once

#include "egl/display.h"
#include "egl/egl_api.h"
#include "egl/surface.h"
#include "profiles/config.h"

namespace egl::standard {

// The error of a request, EGL_SUCCESS for none. A null list is an empty one.
[[nodiscard]] EGLint windowSurfaceError(const Config &config, const EGLint *attributes);
[[nodiscard]] EGLint pbufferSurfaceError(const Config &config, const EGLint *attributes);
[[nodiscard]] EGLint pixmapSurfaceError(const Config &config, const EGLint *attributes);
// The error of a pixmap as the target of rendering in the format.
[[nodiscard]] EGLint pixmapError(const Display &display, uint64_t pixmap, const host::platform::PixelFormat *format);

// The error of eglQuerySurface. An attribute that does not apply to the kind of surface succeeds and writes nothing.
[[nodiscard]] EGLint querySurface(Surface &surface, EGLint attribute, EGLint *value);
// The error of eglSurfaceAttrib.
[[nodiscard]] EGLint setSurfaceAttribute(Surface &surface, EGLint attribute, EGLint value);

} // namespace egl::standard
