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
    bool ended = false;                // the thread's last exit handlers run: it can hold no context any more
    Context *current = nullptr;        // null when nothing is current
    Display *currentDisplay = nullptr; // of the current context
    zvThread backEnd = {};             // what back ends read of it
    ThreadHold *hold = nullptr;        // made at the first bind, and gone with the thread
};

extern constinit thread_local ThreadRecord threadRecord __attribute__((tls_model("initial-exec")));

// What a thread keeps alive, and what it remembers.
struct ThreadHold {
    std::shared_ptr<Context> current;
    BindMemos memos;
};

// A strong reference to the current context, or null.
[[nodiscard]] std::shared_ptr<Context> currentContext();

// Makes sure that the thread can hold a context. False when it is too late in its life for that.
[[nodiscard]] bool prepareThread();

// Replaces the current context and its display and drops the reference to the old one; the thread is prepared. A thread
// that exits drops its reference and does nothing else: the context stays marked as bound, which is EGL_BAD_ACCESS
// elsewhere. Its exit handlers may still bind and release, but for those that run in the last round.
void setCurrentContext(std::shared_ptr<Context> context, Display *display);

// Keeps the first error: a pending one is never overwritten, but for desktop clients, who read that of the last call.
// Otherwise only success clears it.
void setError(EGLint code);

} // namespace egl
