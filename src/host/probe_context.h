// A short-lived core context with which the library looks at the host, whatever the thread has current.
#pragma once

#include <memory>

#include "host/host_context.h"
#include "host/wsapi.h"

namespace host {

// What was current before is put back at the end, so that an application that probes while drawing goes on drawing.
struct HostProbeContext {
    platform::SavedBinding *previous = nullptr; // null when the thread had nothing current
    uint64_t previousHostContext = 0;           // what currentHostContext() named
    std::unique_ptr<HostContextHandle> probe;
    std::shared_ptr<glove::WSAPI> windowSystem;
    bool isCurrent = false;
};

// Makes the context and makes it current on the calling thread. Never null; ask isHostProbeCurrent.
[[nodiscard]] std::unique_ptr<HostProbeContext> createHostProbeContext(std::shared_ptr<glove::WSAPI> windowSystem);
[[nodiscard]] bool isHostProbeCurrent(const HostProbeContext &probe);
// On a thread that had nothing current, currentHostContext() goes on naming the dead probe.
void destroyHostProbeContext(std::unique_ptr<HostProbeContext> probe);

} // namespace host
