#include <dlfcn.h>

#include "foundation/dynamic_library.h"
#include "foundation/platform/library_directories.h"

const char *const hostOpenGLLibraryName = "libGL.so.1";
const char *const hostPlainOpenGLLibraryName = "libGLX.so.0";
const char *const es1LibraryName = "libGLESv1_CM.so.1";
const char *const es2LibraryName = "libGLESv2.so.2";

void *findUnexportedHostFunction(const char *name) {
    using GetProcAddress = void *(*)(const unsigned char *name);
    static const auto getProcAddress = [] {
        void *const library = dlopen("libGLX.so.0", RTLD_LAZY | RTLD_LOCAL);
        return library ? reinterpret_cast<GetProcAddress>(dlsym(library, "glXGetProcAddressARB")) : nullptr;
    }();
    return getProcAddress ? getProcAddress(reinterpret_cast<const unsigned char *>(name)) : nullptr;
}

std::vector<std::string> systemLibraryDirectories() {
    return {"/usr/lib/" ZELVANE_MULTIARCH,
            "/lib/" ZELVANE_MULTIARCH,
            "/usr/lib64",
            "/usr/lib",
            "/lib64",
            "/lib",
            "/usr/local/lib"};
}
