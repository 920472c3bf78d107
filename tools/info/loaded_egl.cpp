#include "tools/info/loaded_egl.h"

#include <dlfcn.h>
#include <stdexcept>

namespace {

void *load(const std::string &file) {
    void *library = dlopen(file.c_str(), RTLD_LAZY | RTLD_GLOBAL);
    if (!library) throw std::runtime_error(dlerror());
    return library;
}

template <typename Function>
void take(Function &function, void *library, const char *name) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    if (!function) throw std::runtime_error(std::string("the library has no ") + name);
}

} // namespace

LoadedEgl::LoadedEgl(const std::string &file) {
    void *const library = load(file);
    take(getDisplay, library, "eglGetDisplay");
    take(initialize, library, "eglInitialize");
    take(queryString, library, "eglQueryString");
    take(getError, library, "eglGetError");
    take(getConfigs, library, "eglGetConfigs");
    take(getConfigAttrib, library, "eglGetConfigAttrib");
    take(createContext, library, "eglCreateContext");
    take(destroyContext, library, "eglDestroyContext");
    take(createPbufferSurface, library, "eglCreatePbufferSurface");
    take(destroySurface, library, "eglDestroySurface");
    take(makeCurrent, library, "eglMakeCurrent");
    take(getProcAddress, library, "eglGetProcAddress");
}
