// Separate from the transport, so that tests can link another path.
#include "ui/socket.h"

std::string KZRIPC::socketPath(std::string_view name) {
    return std::string("/tmp/").append(name);
}
