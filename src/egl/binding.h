// Binding a context to the calling thread: host context, back-end context and thread record come together here.
#pragma once

#include <memory>

#include "egl/context.h"
#include "egl/display.h"
#include "egl/surface.h"

namespace egl {

// A bind's claim on its context. Gives up what it took unless the bind succeeds.
class BindClaim {
public:
    // Waits for the first bind of another context of the share group where this is the context's first bind, too.
    explicit BindClaim(Context &context);
    BindClaim(const BindClaim &) = delete;
    BindClaim &operator=(const BindClaim &) = delete;
    ~BindClaim();

    // False when another thread has the context. A context that is current here is claimed already.
    [[nodiscard]] bool isHeld() const { return m_isTaken || m_isCurrent; }
    // The bind has succeeded: unbinding gives the claim up.
    void keep() { m_isTaken = false; }

private:
    Context &m_context;
    std::unique_lock<std::recursive_mutex> m_firstBind;
    const bool m_isCurrent;
    bool m_isTaken;
};

// Ends the thread's binding on the EGL side and does what eglDestroyContext put off. The host binding stays. The
// display is the entry's and not the context's own: a doomed context of another display is looked up in the wrong
// table.
void unbindCurrent(Display &display);

// What the current context has drawn goes to the pixmap of its surface, if that has one.
void showPixmap(const Context &current);

// The caller has claimed the context and prepared the thread. False leaves the thread without a current context if it
// had another one.
[[nodiscard]] bool bindContext(const std::shared_ptr<Context> &context, const SurfacePair &surfaces);

// Binds with a surface of the library's own, which stays in the display's table until eglTerminate.
[[nodiscard]] bool bindSurfaceless(const std::shared_ptr<Context> &context);

} // namespace egl
