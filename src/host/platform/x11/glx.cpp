#include "host/platform/x11/glx.h"

#include <dlfcn.h>

namespace host::platform::x11 {

namespace {

// If the host's GLX is in another library, the linked function is kept.
template <typename Function>
Function find(void *library, const char *name, Function linked) {
    void *const found = library ? dlsym(library, name) : nullptr;
    return found ? reinterpret_cast<Function>(found) : linked;
}

} // namespace

Glx &glx() {
    static Glx functions = [] {
        void *const library = dlopen("libGLX.so.0", RTLD_LAZY | RTLD_LOCAL);
        return Glx{
#define GLX_FUNCTION(field, function) .field = find(library, #function, &::function),
#include "host/platform/x11/data/glx_functions.def"
#undef GLX_FUNCTION
        };
    }();
    return functions;
}

} // namespace host::platform::x11
