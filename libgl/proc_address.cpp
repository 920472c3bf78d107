// glXGetProcAddress: returns our own functions, so that what a program has looked up follows too.
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
    // A null result says that an extension is missing. The host has a function of every GL name.
    if (!onHost) return nullptr;
    size_t slot = libgl::findNamedSlot(name);
    // GLX functions that no table knows act on what they are given.
    if (slot == libgl::noSlot && strncmp(name, "glX", 3) != 0) slot = libgl::takeUnnamedSlot(name);
    return slot == libgl::noSlot ? onHost : libgl::entry(slot);
}

extern "C" [[gnu::visibility("default"), gnu::alias("glXGetProcAddressARB")]] Function
glXGetProcAddress(const unsigned char *procName);
