// Host contexts: the desktop OpenGL context of each EGL context, and the current one of each thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "host/host_surface.h"
#include "host/pixel_format.h"
#include "host/platform/operations.h"

namespace glove {

// Owns one host context. The container is null when the host returned none; it is then treated as no context.
class GLContext {
public:
    // Takes ownership of the container and registers the context as live.
    [[nodiscard]] static std::shared_ptr<GLContext> create(host::platform::ContextContainer *container);

    // Used by create.
    GLContext(host::platform::ContextContainer *container, uint64_t number);
    GLContext(const GLContext &) = delete;
    GLContext &operator=(const GLContext &) = delete;
    ~GLContext();

    [[nodiscard]] host::platform::ContextContainer *container() const { return m_container; }
    // Never reused, so that the number of a dead context never means another one. 0 without a container.
    [[nodiscard]] uint64_t number() const { return m_number; }

private:
    host::platform::ContextContainer *const m_container;
    const uint64_t m_number;
};

} // namespace glove

namespace host {

// The host side of an EGL context.
struct HostContextHandle {
    std::shared_ptr<glove::GLContext> context;
};

struct HostContextRequest {
    platform::PixelFormat *format = nullptr;
    int32_t legacy = 0; // 1 for a legacy context, any other value for 3.2 core
    Robustness robustness = {};
    std::optional<DesktopContext> desktop = {}; // nothing for a context that carries OpenGL ES
    std::shared_ptr<glove::GLContext> share = nullptr;
};

// Always returns a handle: a failure on the host shows at the first bind. Each call leaks the format that it derives.
[[nodiscard]] std::unique_ptr<HostContextHandle> createHostContext(const HostContextRequest &request);

enum class HostBinding {
    failed,
    detached, // the context has lost its view and is not made current: the current context stays
    current,  // the context is current, or none is, as requested
};

// Binds the context to the surface on the calling thread; null means none. A context without a surface, or with one
// that has no native object, is only detached. read: a surface with a native object to read from in place of that one;
// null for none.
[[nodiscard]] HostBinding makeHostContextCurrent(const HostContextHandle *hostContext, const glove::ISurface *surface,
                                                 const glove::ISurface *read = nullptr);

// Makes it current without a default framebuffer.
[[nodiscard]] HostBinding makeHostContextCurrentWithoutDrawable(const HostContextHandle *hostContext);

// The age of the back buffer's contents that the context has, in frames since they were drawn; 0 for contents that
// are undefined.
[[nodiscard]] int32_t hostBufferAge(const HostContextHandle *hostContext);

// Not clamped, in frames per swap. Does nothing without a context.
void setHostSwapInterval(const HostContextHandle *hostContext, int32_t interval);

// Keeps a context current without a drawable while it lives, then restores the previous one.
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
// context's.
[[nodiscard]] uint64_t currentHostContext();
// The live context of that number. Null when it is dead, or for 0.
[[nodiscard]] std::shared_ptr<glove::GLContext> lockCurrentHostContext();

// Makes the context current with its attached drawable unless it is already current. A context without a container
// clears the current context.
[[nodiscard]] bool makeHostContextCurrentAsIs(const glove::GLContext &context);
// For use by the functions that make contexts current only.
void setCurrentHostContext(uint64_t number);

} // namespace host
