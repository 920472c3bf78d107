// What is told of calls beside their answers: the lines of the journal, and refusals in words. Entries hand their
// answers through; where nobody listens that costs one test of a bool.
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

// The calls that are told of. Each reads the calling thread's EGL error and the note of the rule behind it.
void initialize(EGLBoolean answer, EGLDisplay dpy);
void choice(EGLBoolean answer, const EGLint *attributes, EGLint found, const ChoiceAccount &account);
void context(EGLContext answer, EGLDisplay dpy, EGLConfig config, EGLContext share, const EGLint *attributes);
// call: the name of the entry.
void surface(EGLSurface answer, const char *call, EGLDisplay dpy, EGLConfig config, const EGLint *attributes);
void makeCurrent(EGLBoolean answer, EGLSurface draw, EGLSurface read, EGLContext context);
void bindApi(EGLBoolean answer, EGLenum api);
void lookup(__eglMustCastToProperFunctionPointerType answer, const char *name);
void swap(EGLBoolean answer, EGLSurface surface);

// Hands the answer through and tells of the call.
template <typename Answer, typename Tell, typename... Arguments>
[[nodiscard]] Answer told(Answer answer, Tell tell, Arguments... arguments) {
    if (isOn()) [[unlikely]]
        tell(answer, arguments...);
    return answer;
}

} // namespace egl::reports
