// The sync rules of the EGL standard, which apply to desktop clients in place of a device's: fences and reusable syncs,
// with handles and results of EGL, and waits that need no current context.
#pragma once

#include "egl/egl_api.h"
#include "egl/standard/locked_table.h"

namespace egl {
class Display;
}

namespace egl::standard {

class Sync;

using Syncs = LockedTable<Sync>;

// Empties the table and ends all waits.
void clearSyncs(Syncs &syncs);

// The entries of these names, on an initialised display.
// unknownType: the error for an unknown type; the core entry and the extension's entry differ in it.
[[nodiscard]] EGLSync createSync(Display &display, EGLenum type, const EGLAttrib *attributes, EGLint unknownType);
[[nodiscard]] EGLBoolean destroySync(Display &display, EGLSync handle);
[[nodiscard]] EGLint clientWaitSync(Display &display, EGLSync handle, EGLint flags, EGLTime timeoutNs);
[[nodiscard]] EGLBoolean waitSync(Display &display, EGLSync handle, EGLint flags);
[[nodiscard]] EGLBoolean getSyncAttrib(Display &display, EGLSync handle, EGLint attribute, EGLAttrib *value);

// eglSignalSyncKHR.
EGLBoolean EGLAPIENTRY signalSync(EGLDisplay dpy, EGLSync handle, EGLenum mode);

} // namespace egl::standard
