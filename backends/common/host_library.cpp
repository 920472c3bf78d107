#include "common/host_library.h"

#include <dlfcn.h>

#include "common/open_host_library.h"

void *hostFunction(const char *name) {
    // The handle's own symbols come before those of other libraries; a global lookup would find our own exports.
    static void *const library = openHostLibrary();
    if (!library) return nullptr;
    if (void *const function = dlsym(library, name)) return function;
    return unexportedFunction(library, name);
}
