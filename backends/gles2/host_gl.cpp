#include "host_gl.h"

#include <dlfcn.h>

#include <optional>

namespace {

using GetProcAddress = void *(*)(const GLubyte *name);

struct HostLibrary {
    // The handle's own names win over those of whoever else is loaded; a bare lookup would find our own exports.
    void *handle = dlopen("libGL.so.1", RTLD_LAZY | RTLD_LOCAL);
    GetProcAddress getProcAddress =
        handle ? reinterpret_cast<GetProcAddress>(dlsym(handle, "glXGetProcAddressARB")) : nullptr;
};

std::optional<HostGl> loadHostGl() {
    HostGl gl;
#define HOST_CALL(field, name)                                                                                         \
    gl.field = reinterpret_cast<decltype(gl.field)>(hostFunction(#name));                                              \
    if (!gl.field) return std::nullopt;
    HOST_CALLS(HOST_CALL)
#undef HOST_CALL
    return gl;
}

} // namespace

void *hostFunction(const char *name) {
    static const HostLibrary library;
    if (!library.handle) return nullptr;
    if (void *const function = dlsym(library.handle, name)) return function;
    return library.getProcAddress ? library.getProcAddress(reinterpret_cast<const GLubyte *>(name)) : nullptr;
}

const HostGl *findHostGl() {
    static const std::optional<HostGl> gl = loadHostGl();
    return gl ? &*gl : nullptr;
}

const HostGl &hostGl() {
    return *findHostGl();
}
