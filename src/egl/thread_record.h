// The calling thread's pending error and current context.
#pragma once

#include <memory>

#include "egl/egl_api.h"
#include "zelvane/back_end.h"

namespace egl {

class Context;
class Display;

// Trivially destructible and statically initialised, so that reading it is one plain thread-local load: GL proxies do
// so at every call. The strong reference to the context is held beside it and dropped at thread exit.
struct ThreadRecord {
    EGLint error = EGL_SUCCESS;
    bool ended = false;                // the thread is exiting and can hold no context any more
    Context *current = nullptr;        // null when nothing is current
    Display *currentDisplay = nullptr; // of the current context
    zvThread backEnd = {};             // what back ends read of it
};

extern constinit thread_local ThreadRecord threadRecord __attribute__((tls_model("initial-exec")));

// A strong reference to the current context, or null.
[[nodiscard]] std::shared_ptr<Context> currentContext();

// Replaces the current context and its display and drops the reference to the old one. A thread that exits drops its
// reference and does nothing else: the context stays marked as bound, which callers see as EGL_BAD_ACCESS elsewhere.
void setCurrentContext(std::shared_ptr<Context> context, Display *display);

// Keeps the first error: a pending one is never overwritten. Only success clears it.
void setError(EGLint code);

} // namespace egl
