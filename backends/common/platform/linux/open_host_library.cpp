#include "common/open_host_library.h"

#include <dlfcn.h>

#include "common/desktop_clients.h"

namespace {

constexpr int scope = RTLD_LAZY | RTLD_LOCAL;

} // namespace

void *openHostLibrary() {
    // With libGL.so.1 in the process, the loaders of desktop programs assume that it draws by GLX.
    void *const plain = servesDesktopClients() ? dlopen("libOpenGL.so.0", scope) : nullptr;
    return plain ? plain : dlopen("libGL.so.1", scope);
}

// The library exports the functions of old OpenGL versions only.
void *unexportedFunction(void *library, const char *name) {
    using GetProcAddress = void *(*)(const unsigned char *name);
    static const auto getProcAddress = [library] {
        void *const own = dlsym(library, "glXGetProcAddressARB");
        void *const glx = own ? nullptr : dlopen("libGLX.so.0", scope);
        return reinterpret_cast<GetProcAddress>(glx ? dlsym(glx, "glXGetProcAddressARB") : own);
    }();
    return getProcAddress ? getProcAddress(reinterpret_cast<const unsigned char *>(name)) : nullptr;
}
