// The strings that identify the host's OpenGL.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "foundation/dynamic_library.h"
#include "host/wsapi.h"

namespace capability {

struct HostIdentity {
    std::string vendor, renderer, version; // empty if the host has no such string
};

// Probes with a context on the calling thread. Nothing when none can be created.
[[nodiscard]] std::optional<HostIdentity> probeHostIdentity(const DynamicLibrary &library,
                                                            const std::shared_ptr<glove::WSAPI> &windowSystem);

} // namespace capability
