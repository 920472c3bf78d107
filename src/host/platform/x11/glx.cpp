#include "host/platform/x11/glx.h"

#include <dlfcn.h>
#include <initializer_list>

namespace host::platform::x11 {

namespace {

// Not linked: the loader would find it before the libGL.so.1 of a desktop program that is linked to libEGL first.
void *openHostGlx() {
    for (const char *name : {"libGLX.so.0", "libGL.so.1"}) {
        if (void *const library = dlopen(name, RTLD_LAZY | RTLD_LOCAL)) return library;
    }
    return nullptr;
}

// Without GLX all functions return 0.
template <typename Result, typename... Arguments>
void find(void *library, const char *name, Result (*&function)(Arguments...)) {
    if (void *const found = library ? dlsym(library, name) : nullptr)
        function = reinterpret_cast<Result (*)(Arguments...)>(found);
    else
        function = [](Arguments...) { return Result(); };
}

} // namespace

Glx &glx() {
    static Glx functions = [] {
        void *const library = openHostGlx();
        Glx found{};
#define GLX_FUNCTION(field, function) find(library, #function, found.field);
#include "host/platform/x11/data/glx_functions.def"
#undef GLX_FUNCTION
        return found;
    }();
    return functions;
}

} // namespace host::platform::x11
