// In the place of the library's own path: a socket in the temporary directory of the case, so that neither cases nor
// suites meet at the one socket of the machine.
#include <cstdlib>

#include "ui/socket.h"

std::string KZRIPC::socketPath(std::string_view name) {
    return std::string(getenv("TMPDIR")).append("/").append(name);
}
