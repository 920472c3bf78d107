#include "common/open_host_library.h"

#include <dlfcn.h>

void *openHostLibrary() {
    return dlopen("libGL.so.1", RTLD_LAZY | RTLD_LOCAL);
}

// The library exports the functions of old versions only.
void *unexportedFunction(void *library, const char *name) {
    using GetProcAddress = void *(*)(const unsigned char *name);
    static const auto getProcAddress = reinterpret_cast<GetProcAddress>(dlsym(library, "glXGetProcAddressARB"));
    return getProcAddress ? getProcAddress(reinterpret_cast<const unsigned char *>(name)) : nullptr;
}
