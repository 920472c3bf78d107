// Host contexts: the desktop OpenGL context under an EGL context, and which one a thread has current.
#pragma once

#include <cstdint>
#include <memory>

#include "host/host_surface.h"
#include "host/platform/operations.h"

namespace glove {

// Owns one host context. Null container when the host gave none; everything then treats it as no context.
class GLContext : public std::enable_shared_from_this<GLContext> {
public:
    explicit GLContext(host::platform::ContextContainer *container);
    GLContext(const GLContext &) = delete;
    GLContext &operator=(const GLContext &) = delete;
    ~GLContext();

    [[nodiscard]] host::platform::ContextContainer *container() const { return m_container; }

private:
    host::platform::ContextContainer *m_container;
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
    std::shared_ptr<glove::GLContext> share = nullptr;
};

// Always gives a handle: a host that refuses shows at the first bind. Each call loses the format that it derives.
[[nodiscard]] std::unique_ptr<HostContextHandle> createHostContext(const HostContextRequest &request);

// Binds the context to the surface on the calling thread; a null context or an expired surface means none. With a
// context and no surface the context is only detached, and what was current stays current.
[[nodiscard]] bool makeHostContextCurrent(const HostContextHandle *hostContext,
                                          const std::weak_ptr<glove::ISurface> &surface);

// Unclamped, in frames per swap. Does nothing without a context.
void setHostSwapInterval(const HostContextHandle *hostContext, int32_t interval);

// The container that this layer last made current on the thread. After a probe it may name a dead one: compare it,
// never follow it.
[[nodiscard]] platform::ContextContainer *currentHostContext();
// The live context of that container. Null when it is dead, or when there is none.
[[nodiscard]] std::shared_ptr<glove::GLContext> lockCurrentHostContext();

// Makes the container current with what is attached to it unless it is already; null clears the current context.
[[nodiscard]] bool makeContainerCurrent(platform::ContextContainer *container);
// Only for those who make containers current themselves.
void setCurrentHostContext(platform::ContextContainer *container);

} // namespace host
