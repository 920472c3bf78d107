// The binding rules of the EGL standard, which apply to desktop clients in place of a device's.
#pragma once

#include "egl/bind_memos.h"
#include "egl/display.h"
#include "egl/egl_api.h"
#include "egl/surface.h"
#include "profiles/config.h"

namespace egl::standard {

// The error of a bind, checked before any change, so that a refused bind leaves the current context as it is.
[[nodiscard]] EGLint bindError(const Display &display, const BindRequest &request);

// Whether the surface is the draw surface of the calling thread.
[[nodiscard]] bool isDrawnTo(const Surface &surface);
// The interval, clamped to the limits of the context's config.
[[nodiscard]] EGLint clampedSwapInterval(const Config &config, EGLint interval);

// Releases whatever is current: a thread has one current context, be it of OpenGL or of OpenGL ES.
void releaseCurrentContext();
// As eglReleaseThread: releases whatever is current, and new contexts are of OpenGL ES again.
void releaseThread();
// As eglMakeCurrent without context and surfaces. Accepts a display that is not initialised.
[[nodiscard]] EGLBoolean releaseCurrent(EGLDisplay dpy);
// As eglTerminate: current contexts are destroyed when they are released, all others at once. Accepts a display that
// is not initialised.
[[nodiscard]] EGLBoolean terminate(EGLDisplay dpy);

} // namespace egl::standard
