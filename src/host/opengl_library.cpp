#include "host/opengl_library.h"

namespace host {

DynamicLibrary openHostOpenGLLibrary() {
    DynamicLibrary library(hostOpenGLLibraryName);
    library.open(hostLibrarySearchPaths());
    return library;
}

} // namespace host
