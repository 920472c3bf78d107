#include "common/open_host_library.h"

#include <dlfcn.h>

#include "common/desktop_clients.h"

namespace {

constexpr int scope = RTLD_LAZY | RTLD_LOCAL;

} // namespace

void *openHostLibrary() {
    void *const library = servesDesktopClients() ? nullptr : dlopen("libGL.so.1", scope);
    // The libGL.so.1 of desktop programs would call the back end again.
    const bool isHosts = library && !dlsym(library, "zvFollowLibEgl");
    return isHosts ? library : dlopen("libGLX.so.0", scope);
}

// libGL.so.1 exports the functions of old OpenGL versions only, libGLX.so.0 none.
void *unexportedFunction(void *library, const char *name) {
    using GetProcAddress = void *(*)(const unsigned char *name);
    static const auto getProcAddress = reinterpret_cast<GetProcAddress>(dlsym(library, "glXGetProcAddressARB"));
    return getProcAddress ? getProcAddress(reinterpret_cast<const unsigned char *>(name)) : nullptr;
}
