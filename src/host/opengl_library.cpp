#include "host/opengl_library.h"

namespace host {

DynamicLibrary openHostOpenGLLibrary() {
    // The host's OpenGL exports OpenGL ES names too, which lookups in the whole process must not find.
    DynamicLibrary library(hostOpenGLLibraryName, DynamicLibrary::Scope::owner);
    library.open(hostLibrarySearchPaths());
    return library;
}

DynamicLibrary openPlainHostOpenGLLibrary() {
    if (!hostPlainOpenGLLibraryName) return openHostOpenGLLibrary();
    DynamicLibrary library(hostPlainOpenGLLibraryName, DynamicLibrary::Scope::owner);
    library.setLookup(findUnexportedHostFunction);
    return library.open(hostLibrarySearchPaths()) ? library : openHostOpenGLLibrary();
}

} // namespace host
