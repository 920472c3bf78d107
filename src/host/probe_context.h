// A short-lived core context for queries of the host, independent of the thread's current context.
#pragma once

#include <memory>

#include "host/host_context.h"
#include "host/wsapi.h"

namespace host {

// The previous binding is restored at the end, so that an application that probes while drawing can go on drawing.
struct HostProbeContext {
    platform::SavedBinding *previous = nullptr; // null when the thread had nothing current
    uint64_t previousHostContext = 0;           // the result of currentHostContext() before
    std::unique_ptr<HostContextHandle> probe;
    std::shared_ptr<glove::WSAPI> windowSystem;
    bool isCurrent = false;
};

// Creates the context and makes it current on the calling thread. Never null; check isHostProbeCurrent.
[[nodiscard]] std::unique_ptr<HostProbeContext> createHostProbeContext(std::shared_ptr<glove::WSAPI> windowSystem);
[[nodiscard]] bool isHostProbeCurrent(const HostProbeContext &probe);
// On a thread that had nothing current, currentHostContext() still returns the dead probe's number afterwards.
void destroyHostProbeContext(std::unique_ptr<HostProbeContext> probe);

} // namespace host
