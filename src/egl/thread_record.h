// The calling thread's pending error and current context.
#pragma once

#include <memory>

#include "egl/bind_memos.h"
#include "egl/egl_api.h"
#include "zelvane/back_end.h"

namespace egl {

class Context;
class Display;
struct ThreadHold;

// Trivially destructible and statically initialised, so that reading it is one plain thread-local load.
struct ThreadRecord {
    EGLint error = EGL_SUCCESS;
    EGLenum api = EGL_OPENGL_ES_API;   // of new contexts
    bool ended = false;                // in the last round of exit handlers: the thread can no longer hold a context
    Context *current = nullptr;        // null when nothing is current
    Context *currentEs = nullptr;      // the same, null too while a context of desktop OpenGL is current
    Display *currentDisplay = nullptr; // of the current context
    zvThread backEnd = {};             // read by back ends
    ThreadHold *hold = nullptr;        // created at the first bind, destroyed with the thread
};

extern constinit thread_local ThreadRecord threadRecord __attribute__((tls_model("initial-exec")));

// The references of a thread, and its bind memos.
struct ThreadHold {
    std::shared_ptr<Context> current;
    BindMemos memos;
};

// A strong reference to the current context, or null.
[[nodiscard]] std::shared_ptr<Context> currentContext();

// Prepares the thread to hold a context. False in the last round of the thread's exit handlers.
[[nodiscard]] bool prepareThread();

// Replaces the current context and its display and drops the reference to the old one; the thread is prepared. A thread
// that exits only drops its reference: the context stays marked as bound, so that binding it elsewhere is
// EGL_BAD_ACCESS. The thread's exit handlers may still bind and release, except in the last round.
void setCurrentContext(std::shared_ptr<Context> context, Display *display);

// Keeps the first error: a pending one is not overwritten, except for desktop clients, which get that of the last call.
// Otherwise only success clears it.
void setError(EGLint code);

} // namespace egl
