// Replaces the library's path: a socket in the temporary directory of the case, so that neither cases nor suites share
// the machine's socket.
#include <cstdlib>

#include "ui/socket.h"

std::string KZRIPC::socketPath(std::string_view name) {
    return std::string(getenv("TMPDIR")).append("/").append(name);
}
