#include "common/host_library.h"

#include <dlfcn.h>

namespace {

using GetProcAddress = void *(*)(const unsigned char *name);

struct HostLibrary {
    // The handle's own names win over those of whoever else is loaded; a bare lookup would find our own exports.
    void *handle = dlopen("libGL.so.1", RTLD_LAZY | RTLD_LOCAL);
    GetProcAddress getProcAddress =
        handle ? reinterpret_cast<GetProcAddress>(dlsym(handle, "glXGetProcAddressARB")) : nullptr;
};

} // namespace

void *hostFunction(const char *name) {
    static const HostLibrary library;
    if (!library.handle) return nullptr;
    if (void *const function = dlsym(library.handle, name)) return function;
    return library.getProcAddress ? library.getProcAddress(reinterpret_cast<const unsigned char *>(name)) : nullptr;
}
