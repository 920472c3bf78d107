#include <cstdlib>

#include "foundation/paths.h"

std::string getTemporaryDirectory() {
    const char *value = getenv("TMPDIR");
    std::string directory = value && *value ? value : "/tmp";
    if (directory.back() != '/') directory += '/';
    return directory;
}
