// A fence of the host that any thread can ask, whatever it has current.
#pragma once

#include <cstdint>
#include <memory>

#include "capability/host_egl.h"
#include "egl/context.h"

namespace egl::standard {

class HostFence {
public:
    // Set by the context that is current on the thread, whose commands are sent. Null when the host has no fences.
    [[nodiscard]] static std::unique_ptr<HostFence> create(Context &current);

    HostFence(const HostFence &) = delete;
    HostFence &operator=(const HostFence &) = delete;
    ~HostFence();

    // Whether the commands before the fence are done. Waits no longer than that for them. One whose contexts are all
    // gone is done.
    [[nodiscard]] bool wait(uint64_t timeoutNs);
    // Lets the context that is current on the thread wait, if it shares with the fence; otherwise the thread waits.
    void waitOnHost();

private:
    HostFence(Context &current, host::EGL::Sync fence);
    // Runs the action with a context current that knows the fence. False when there is none any more.
    template <typename Action>
    bool withContext(Action action);
    [[nodiscard]] bool isSharedWithCurrent() const;

    const host::EGL &m_host;
    const std::shared_ptr<ContextGroup> m_group;
    const std::shared_ptr<const Config> m_config;
    const std::weak_ptr<glove::GLContext> m_maker;
    const int32_t m_legacy;
    const host::EGL::Sync m_fence;
};

} // namespace egl::standard
