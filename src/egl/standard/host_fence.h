// A host fence that any thread can query, with or without a current context.
#pragma once

#include <cstdint>
#include <memory>

#include "capability/host_egl.h"
#include "egl/context.h"
#include "egl/standard/group_host.h"

namespace egl::standard {

class HostFence {
public:
    // Inserted by the thread's current context, whose commands are flushed. Null when the host has no fences.
    [[nodiscard]] static std::unique_ptr<HostFence> create(Context &current);

    HostFence(const HostFence &) = delete;
    HostFence &operator=(const HostFence &) = delete;
    ~HostFence();

    // Whether the commands before the fence have completed; waits at most timeoutNs. A fence whose contexts are all
    // destroyed has completed.
    [[nodiscard]] bool wait(uint64_t timeoutNs);
    // Makes the context that is current on the thread wait, if it shares with the fence; otherwise the thread waits.
    void waitOnHost();

private:
    HostFence(Context &current, host::EGL::Sync fence);

    const host::EGL &m_host;
    const GroupHost m_group;
    const host::EGL::Sync m_fence;
};

} // namespace egl::standard
