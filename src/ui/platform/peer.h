// The user at the other end of a socket. Platforms query it in different ways.
#pragma once

#include <optional>
#include <sys/types.h>

namespace KZRIPC {

// The user of the process that listens, or that connected. Nothing when the descriptor is not connected.
[[nodiscard]] std::optional<uid_t> peerUser(int descriptor);

} // namespace KZRIPC
