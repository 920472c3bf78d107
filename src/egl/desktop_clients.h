// What X11 programs of the desktop expect of an EGL and handheld devices do not give. All of it hangs on the variable
// ZELVANE_DESKTOP_CLIENTS, which is looked at once and has to be 1; without it every function here gives "nothing",
// and the callers answer as a device does.
#pragma once

#include <cstdint>

#include "egl/egl_api.h"

namespace egl::desktop_clients {

using Function = void (*)();

// Whether the process is in this mode.
[[nodiscard]] bool isOn();

// What eglGetProcAddress hands out before it looks at its tables: the core EGL entries, and extension entries that
// differ for desktop clients. Null for all other names.
[[nodiscard]] Function findEntry(const char *name);

// Loads the back ends before anything of the host: tracers look functions of OpenGL ES up in the whole process, and the
// host's drivers export the same names.
void loadBackEnds();

// Whether a back end has a function of that name on some host, so that it is worth an entry.
[[nodiscard]] bool isKnownToBackEnd(const char *name);

// The window or pixmap behind the argument of a platform entry: a pointer to it in this mode, otherwise the thing
// itself. 0 for a null pointer.
[[nodiscard]] uint64_t drawableOf(void *native);

// Says on the log, once a process, that an application asked for another API than OpenGL ES.
void tellOfOtherApi(EGLenum api);

} // namespace egl::desktop_clients
