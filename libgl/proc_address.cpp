// glXGetProcAddress: returns this library's functions, so that looked-up functions follow the current context too.
#include <cstring>

#include "libgl/entries.h"
#include "libgl/libraries.h"
#include "libgl/slots.h"

using libgl::Function;

extern "C" [[gnu::visibility("default")]] Function glXGetProcAddressARB(const unsigned char *procName) {
    const char *const name = reinterpret_cast<const char *>(procName);
    if (!name) return nullptr;
    if (strcmp(name, "glXGetProcAddress") == 0 || strcmp(name, "glXGetProcAddressARB") == 0)
        return reinterpret_cast<Function>(glXGetProcAddressARB);
    const Function onHost = libgl::findHostFunction(name);
    // Null means that the extension is missing, but the host returns a function for every GL name.
    if (!onHost) return nullptr;
    size_t slot = libgl::findNamedSlot(name);
    // GLX functions that are in no table only use their arguments.
    if (slot == libgl::noSlot && strncmp(name, "glX", 3) != 0) slot = libgl::takeUnnamedSlot(name);
    return slot == libgl::noSlot ? onHost : libgl::entry(slot);
}

extern "C" [[gnu::visibility("default"), gnu::alias("glXGetProcAddressARB")]] Function
glXGetProcAddress(const unsigned char *procName);
