// EGL features that X11 desktop programs expect and handheld devices lack. All of it depends on the variable
// ZELVANE_DESKTOP_CLIENTS, which is read once and must be 1; without it every function here returns an empty result,
// and the callers behave as a device does.
#pragma once

#include <cstdint>

#include "egl/egl_api.h"

namespace egl::desktop_clients {

using Function = void (*)();

// Whether desktop mode is on for the process.
[[nodiscard]] bool isOn();

// Whether desktop mode offers contexts of desktop OpenGL, which ZELVANE_DESKTOP_OPENGL=1 requests.
[[nodiscard]] bool haveOpenGl();

// What eglGetProcAddress returns before it searches its tables: the core EGL entries, and extension entries that
// differ for desktop clients. Null for all other names.
[[nodiscard]] Function findEntry(const char *name);

// Loads the back ends before any host library: tracers look up OpenGL ES functions in the whole process, and the
// host's drivers export the same names.
void loadBackEnds();

// Whether a back end has a function of that name on some host, so that it needs an entry.
[[nodiscard]] bool isKnownToBackEnd(const char *name);

// The host's function of a name that no entry exists for, where contexts of desktop OpenGL are offered. The host has a
// function for nearly any name.
[[nodiscard]] Function findHostFunction(const char *name);

// The window or pixmap behind the argument of a platform entry: dereferences the pointer in desktop mode, otherwise
// returns it as the handle. 0 for a null pointer.
[[nodiscard]] uint64_t drawableOf(void *native);

// Logs, once a process, that an application requested another API than OpenGL ES.
void tellOfOtherApi(EGLenum api);

} // namespace egl::desktop_clients
