#include "common/host_library.h"

#include <dlfcn.h>

#include "common/open_host_library.h"

void *hostFunction(const char *name) {
    // A lookup by the handle finds the host's own symbols first; a global lookup would find this library's exports.
    static void *const library = openHostLibrary();
    if (!library) return nullptr;
    if (void *const function = dlsym(library, name)) return function;
    return unexportedFunction(library, name);
}
