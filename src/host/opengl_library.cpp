#include "host/opengl_library.h"

namespace host {

DynamicLibrary openHostOpenGLLibrary() {
    // The host's OpenGL has names of OpenGL ES too: who looks one up in the process must not find the host's.
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
