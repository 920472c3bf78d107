// The texts by which the host's OpenGL identifies itself.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "foundation/dynamic_library.h"
#include "host/wsapi.h"

namespace capability {

struct HostIdentity {
    std::string vendor, renderer, version; // empty where the host has no text
};

// Probes with a context on the calling thread. Nothing when that cannot be created.
[[nodiscard]] std::optional<HostIdentity> probeHostIdentity(const DynamicLibrary &library,
                                                            const std::shared_ptr<glove::WSAPI> &windowSystem);

} // namespace capability
