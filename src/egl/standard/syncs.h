// The sync rules of the EGL standard, which apply to desktop clients in place of a device's: fences and reusable syncs,
// with handles and results of EGL, and waits that need no current context.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>

#include "egl/egl_api.h"

namespace egl {
class Display;
}

namespace egl::standard {

class Sync;

// The syncs of a display. Any thread.
class Syncs {
public:
    [[nodiscard]] EGLSync insert(std::shared_ptr<Sync> sync);
    // Null for an unknown handle.
    [[nodiscard]] std::shared_ptr<Sync> find(EGLSync handle);
    [[nodiscard]] std::shared_ptr<Sync> take(EGLSync handle);
    // Ends all waits.
    void clear();

private:
    std::mutex m_mutex;
    std::map<uintptr_t, std::shared_ptr<Sync>> m_syncs;
    uintptr_t m_lastHandle = 0;
};

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
