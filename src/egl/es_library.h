// A back-end library and the functions that it exports for us; back_end.h says what each does.
#pragma once

#include "foundation/dynamic_library.h"
#include "zelvane/back_end.h"

namespace egl {

// A function that the library lacks is null; all are null when the library could not be opened.
struct EsLibrary {
    explicit EsLibrary(DynamicLibrary opened);
    // The back end of desktop OpenGL, which is part of this library: its contexts are the host's, and so are its
    // functions.
    [[nodiscard]] static EsLibrary ofDesktop();

    const DynamicLibrary library;
    decltype(&zvCreateEsContext) const createEsContext;
    decltype(&zvSetEsContextAttribs) const setEsContextAttribs;
    decltype(&zvDeleteEsContext) const deleteEsContext;
    decltype(&zvGetExtProcAddress) const getExtProcAddress;
    decltype(&zvSetRenderMode) const setRenderMode;
    decltype(&zvMakeImage) const makeImage;
    decltype(&zvDropImage) const dropImage;

private:
    EsLibrary(DynamicLibrary host, decltype(&zvCreateEsContext) create, decltype(&zvDeleteEsContext) remove,
              decltype(&zvGetExtProcAddress) find);

    template <typename Function>
    [[nodiscard]] Function find(const char *name) const {
        return reinterpret_cast<Function>(library.getSymbol(name));
    }
};

} // namespace egl
