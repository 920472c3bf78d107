// What is current, by the rules of the EGL standard, which desktop clients get in place of a device's.
#pragma once

#include "egl/bind_memos.h"
#include "egl/display.h"
#include "egl/egl_api.h"
#include "egl/surface.h"
#include "profiles/config.h"

namespace egl::standard {

// The error of a bind before anything of it is tried, so that one that is refused leaves what is current.
[[nodiscard]] EGLint bindError(const Display &display, const BindRequest &request);

// Whether the surface is what the calling thread draws to.
[[nodiscard]] bool isDrawnTo(const Surface &surface);
// Within what the config of the context says.
[[nodiscard]] EGLint clampedSwapInterval(const Config &config, EGLint interval);

// As eglReleaseThread: nothing stays current.
void releaseThread();
// As eglMakeCurrent without context and surfaces. Takes a display that is not initialised.
[[nodiscard]] EGLBoolean releaseCurrent(EGLDisplay dpy);
// As eglTerminate: contexts that are current somewhere end when they are let go, all others at once. Takes a display
// that is not initialised.
[[nodiscard]] EGLBoolean terminate(EGLDisplay dpy);

} // namespace egl::standard
