#include "ui/platform/peer.h"

#include <sys/socket.h>

std::optional<uid_t> KZRIPC::peerUser(int descriptor) {
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) return std::nullopt;
    return peer.uid;
}
