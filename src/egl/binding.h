// Binds a context to the calling thread: its host context, back-end context and thread record.
#pragma once

#include <memory>

#include "egl/context.h"
#include "egl/display.h"
#include "egl/surface.h"

namespace egl {

// A bind's claim on its context. The destructor releases it unless the bind succeeded.
class BindClaim {
public:
    // If this is the context's first bind, waits for the first bind of any other context of the share group.
    explicit BindClaim(Context &context);
    BindClaim(const BindClaim &) = delete;
    BindClaim &operator=(const BindClaim &) = delete;
    ~BindClaim();

    // False when another thread has claimed the context. A context that is current here is claimed already.
    [[nodiscard]] bool isHeld() const { return m_isTaken || m_isCurrent; }
    // Marks the bind as successful: the claim is then released at the unbind.
    void keep() { m_isTaken = false; }

private:
    Context &m_context;
    std::unique_lock<std::recursive_mutex> m_firstBind;
    const bool m_isCurrent;
    bool m_isTaken;
};

// Ends the thread's binding on the EGL side and runs a deferred eglDestroyContext. The host binding stays. The display
// is the entry's and not the context's own: a context of another display with a pending destroy is looked up in the
// wrong table.
void unbindCurrent(Display &display);

// Copies the current context's rendering to the pixmap of its surface, if it has one.
void showPixmap(const Context &current);

// The caller has claimed the context and prepared the thread. On success the thread takes the reference; on failure it
// has no current context, even if it had another one before.
[[nodiscard]] bool bindContext(std::shared_ptr<Context> &&context, const SurfacePair &surfaces);

// Binds with a surface of the library's own, which stays in the display's table until eglTerminate.
[[nodiscard]] bool bindSurfaceless(std::shared_ptr<Context> &&context);

} // namespace egl
