// A probing context for one query of the host, on the calling thread.
#pragma once

#include <memory>
#include <utility>

#include "host/probe_context.h"

namespace capability {

class HostProbe {
public:
    explicit HostProbe(std::shared_ptr<glove::WSAPI> windowSystem)
        : m_context(host::createHostProbeContext(std::move(windowSystem))) {}
    HostProbe(const HostProbe &) = delete;
    HostProbe &operator=(const HostProbe &) = delete;
    ~HostProbe() { host::destroyHostProbeContext(std::move(m_context)); }

    // False when the host has no context; queries are not allowed then.
    [[nodiscard]] bool isCurrent() const { return host::isHostProbeCurrent(*m_context); }

private:
    std::unique_ptr<host::HostProbeContext> m_context;
};

} // namespace capability
