#include "ui/platform/peer.h"

#include <unistd.h>

std::optional<uid_t> KZRIPC::peerUser(int descriptor) {
    uid_t user = 0;
    gid_t group = 0;
    if (getpeereid(descriptor, &user, &group) != 0) return std::nullopt;
    return user;
}
