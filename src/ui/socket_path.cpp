// Separate from the transport, so that tests can link a path of their own.
#include "ui/socket.h"

std::string KZRIPC::socketPath(std::string_view name) {
    return std::string("/tmp/").append(name);
}
