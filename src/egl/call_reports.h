// Reports about EGL calls beside their results: journal lines, and readable refusals. Entries pass their results
// through; with no journal and no reader that costs one test of a bool.
#pragma once

#include "egl/egl_api.h"
#include "egl/refusal_lines.h"
#include "journal/journal.h"
#include "profiles/choice_account.h"

namespace egl::reports {

// Whether there is a journal or a reader of refusals.
[[nodiscard]] inline bool isOn() {
    static const bool on = journal::isOn() || refusals::hasReaders();
    return on;
}

// The reported calls. Each reads the calling thread's EGL error and the note of the rule behind it.
void initialize(EGLBoolean answer, EGLDisplay dpy);
void choice(EGLBoolean answer, const EGLint *attributes, EGLint found, const ChoiceAccount &account);
void context(EGLContext answer, EGLDisplay dpy, EGLConfig config, EGLContext share, const EGLint *attributes);
// call: the name of the entry.
void surface(EGLSurface answer, const char *call, EGLDisplay dpy, EGLConfig config, const EGLint *attributes);
void makeCurrent(EGLBoolean answer, EGLSurface draw, EGLSurface read, EGLContext context);
void bindApi(EGLBoolean answer, EGLenum api);
void lookup(__eglMustCastToProperFunctionPointerType answer, const char *name);
void swap(EGLBoolean answer, EGLSurface surface);

// Reports the call and returns its result.
template <typename Answer, typename Tell, typename... Arguments>
[[nodiscard]] Answer told(Answer answer, Tell tell, Arguments... arguments) {
    if (isOn()) [[unlikely]]
        tell(answer, arguments...);
    return answer;
}

} // namespace egl::reports
