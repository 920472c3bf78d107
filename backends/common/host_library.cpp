#include "common/host_library.h"

#include <dlfcn.h>

#include "common/open_host_library.h"

void *hostFunction(const char *name) {
    // The handle's own names win over those of whoever else is loaded; a bare lookup would find our own exports.
    static void *const library = openHostLibrary();
    if (!library) return nullptr;
    if (void *const function = dlsym(library, name)) return function;
    return unexportedFunction(library, name);
}
