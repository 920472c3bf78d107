#include "foundation/dynamic_library.h"
#include "foundation/platform/library_directories.h"

const char *const hostOpenGLLibraryName = "libGL.dylib";
const char *const hostPlainOpenGLLibraryName = nullptr;

void *findUnexportedHostFunction(const char *) {
    return nullptr;
}

const char *const es1LibraryName = "libGLESv1_CM.dylib";
const char *const es2LibraryName = "libGLESv2.dylib";

// The full path then has two slashes, which is harmless.
std::vector<std::string> systemLibraryDirectories() {
    return {"/System/Library/Frameworks/OpenGL.framework/Libraries/"};
}
