#include "foundation/environment.h"
#include "foundation/paths.h"

std::string getTemporaryDirectory() {
    const char *value = findVariable("TMPDIR");
    std::string directory = value && *value ? value : "/tmp";
    if (directory.back() != '/') directory += '/';
    return directory;
}
