// Host contexts: the desktop OpenGL context under an EGL context, and which one a thread has current.
#pragma once

#include <cstdint>
#include <memory>

#include "host/host_surface.h"
#include "host/pixel_format.h"
#include "host/platform/operations.h"

namespace glove {

// Owns one host context. Null container when the host gave none; everything then treats it as no context.
class GLContext {
public:
    // Takes the container over and enters it among those that live.
    [[nodiscard]] static std::shared_ptr<GLContext> create(host::platform::ContextContainer *container);

    // For create.
    GLContext(host::platform::ContextContainer *container, uint64_t number);
    GLContext(const GLContext &) = delete;
    GLContext &operator=(const GLContext &) = delete;
    ~GLContext();

    [[nodiscard]] host::platform::ContextContainer *container() const { return m_container; }
    // Never used again, so that a number of a dead context stands for no other. 0 without a container.
    [[nodiscard]] uint64_t number() const { return m_number; }

private:
    host::platform::ContextContainer *const m_container;
    const uint64_t m_number;
};

} // namespace glove

namespace host {

// What an EGL context keeps of its host context.
struct HostContextHandle {
    std::shared_ptr<glove::GLContext> context;
};

struct HostContextRequest {
    platform::PixelFormat *format = nullptr;
    int32_t legacy = 0; // 1 for a legacy context, any other value for 3.2 core
    Robustness robustness = {};
    std::shared_ptr<glove::GLContext> share = nullptr;
};

// Always gives a handle: a host that refuses shows at the first bind. Each call loses the format that it derives.
[[nodiscard]] std::unique_ptr<HostContextHandle> createHostContext(const HostContextRequest &request);

enum class HostBinding {
    failed,
    detached, // the context has lost its view and is not made current: what was current stays
    current,  // or nothing is, as asked
};

// Binds the context to the surface on the calling thread; null means none. A context without a surface, or with one
// that has no native object, is only detached.
[[nodiscard]] HostBinding makeHostContextCurrent(const HostContextHandle *hostContext, const glove::ISurface *surface);

// Makes it current with nothing to draw to but framebuffer objects.
[[nodiscard]] HostBinding makeHostContextCurrentWithoutDrawable(const HostContextHandle *hostContext);

// How many frames ago the contents of the back buffer were drawn that the context has; 0 for contents that are not
// known.
[[nodiscard]] int32_t hostBufferAge(const HostContextHandle *hostContext);

// Unclamped, in frames per swap. Does nothing without a context.
void setHostSwapInterval(const HostContextHandle *hostContext, int32_t interval);

// Has a context current without a drawable while it lives, and puts back what was current before.
class BorrowedBinding {
public:
    explicit BorrowedBinding(const HostContextHandle &hostContext);
    BorrowedBinding(const BorrowedBinding &) = delete;
    BorrowedBinding &operator=(const BorrowedBinding &) = delete;
    ~BorrowedBinding();

    [[nodiscard]] bool isCurrent() const { return m_isCurrent; }

private:
    platform::SavedBinding *m_previous;
    uint64_t m_previousNumber;
    bool m_isCurrent;
};

// The number of the context that this layer last made current on the thread, 0 for none. After a probe it may be a dead
// one's.
[[nodiscard]] uint64_t currentHostContext();
// The live context of that number. Null when it is dead, or when there is none.
[[nodiscard]] std::shared_ptr<glove::GLContext> lockCurrentHostContext();

// Makes the context current with what is attached to it unless it is already. One without a container clears the
// current context.
[[nodiscard]] bool makeHostContextCurrentAsIs(const glove::GLContext &context);
// Only for those who make contexts current by that.
void setCurrentHostContext(uint64_t number);

} // namespace host
