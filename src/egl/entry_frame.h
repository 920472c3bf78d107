// The common part of every entry that takes a display: the order of its first checks, and setting the error.
#pragma once

#include "egl/display.h"
#include "egl/state.h"
#include "egl/thread_record.h"

namespace egl {

template <typename Result>
[[nodiscard]] Result fail(EGLint error, Result result) {
    setError(error);
    return result;
}

// Success clears a pending error without reporting it.
template <typename Result>
[[nodiscard]] Result succeed(Result result) {
    threadRecord.error = EGL_SUCCESS;
    return result;
}

// For a call whose result is only success or failure.
[[nodiscard]] inline EGLBoolean finish(EGLint error) {
    return error == EGL_SUCCESS ? succeed<EGLBoolean>(EGL_TRUE) : fail<EGLBoolean>(error, EGL_FALSE);
}

// Runs body(display) once the library is loaded and dpy is an initialised display.
template <typename Result, typename Body>
[[nodiscard]] Result entry(EGLDisplay dpy, Result failure, Body body) {
    if (!ensureLoaded()) return fail(EGL_NOT_INITIALIZED, failure);
    Display *display = state().findDisplay(dpy);
    if (!display) return fail(EGL_BAD_DISPLAY, failure);
    if (!display->isInitialized()) return fail(EGL_NOT_INITIALIZED, failure);
    return body(*display);
}

// Handles are the numbers from the display's tables.
template <typename Handle>
[[nodiscard]] Handle asHandle(uint64_t number) {
    return reinterpret_cast<Handle>(static_cast<uintptr_t>(number));
}

} // namespace egl
