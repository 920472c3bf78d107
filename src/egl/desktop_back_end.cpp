// The back end of desktop OpenGL. It has no state: the host context does all the work.
#include <string_view>

#include "egl/es_library.h"
#include "egl/state.h"
#include "host/opengl_library.h"

namespace egl {

namespace {

// Stands for every context of the back end.
constinit char theContext = 0;

zvEsContext createContext(const ContextAttribs *, const uint64_t[2], void *, zvEsContext) {
    return &theContext;
}

void deleteContext(zvEsContext) {}

void *findFunction(const char *name) {
    // The host would take the handle of an image of ours for one of its own.
    if (std::string_view(name).starts_with("glEGLImageTarget")) return nullptr;
    return state().openGLLibrary().getSymbol(name);
}

} // namespace

EsLibrary::EsLibrary(DynamicLibrary host, decltype(&zvCreateEsContext) create, decltype(&zvDeleteEsContext) remove,
                     decltype(&zvGetExtProcAddress) find)
    : library(std::move(host)), createEsContext(create), setEsContextAttribs(nullptr), deleteEsContext(remove),
      getExtProcAddress(find), setRenderMode(nullptr), makeImage(nullptr), dropImage(nullptr) {}

EsLibrary EsLibrary::ofDesktop() {
    return {host::openPlainHostOpenGLLibrary(), createContext, deleteContext, findFunction};
}

} // namespace egl
