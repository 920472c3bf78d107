#include "foundation/dynamic_library.h"
#include "foundation/platform/library_directories.h"

const char *const hostOpenGLLibraryName = "libGL.so.1";
const char *const es1LibraryName = "libGLESv1_CM.so.1";
const char *const es2LibraryName = "libGLESv2.so.2";

std::vector<std::string> systemLibraryDirectories() {
    return {"/usr/lib/" ZELVANE_MULTIARCH,
            "/lib/" ZELVANE_MULTIARCH,
            "/usr/lib64",
            "/usr/lib",
            "/lib64",
            "/lib",
            "/usr/local/lib"};
}
