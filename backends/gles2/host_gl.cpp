#include "host_gl.h"

#include <dlfcn.h>

#include <optional>

#include "host_library.h"

namespace {

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
    // The handle's own names win over those of whoever else is loaded; a bare lookup would find our own exports.
    static void *const library = openHostLibrary();
    if (!library) return nullptr;
    if (void *const function = dlsym(library, name)) return function;
    return unexportedFunction(library, name);
}

const HostGl *findHostGl() {
    static const std::optional<HostGl> gl = loadHostGl();
    return gl ? &*gl : nullptr;
}

const HostGl &hostGl() {
    return *findHostGl();
}
