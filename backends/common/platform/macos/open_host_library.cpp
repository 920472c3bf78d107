#include "common/open_host_library.h"

#include <dlfcn.h>

void *openHostLibrary() {
    return dlopen("/System/Library/Frameworks/OpenGL.framework/Libraries/libGL.dylib", RTLD_LAZY | RTLD_LOCAL);
}

// The library exports all its functions.
void *unexportedFunction(void *, const char *) {
    return nullptr;
}
