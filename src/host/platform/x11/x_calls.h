// Wrappers of X and GLX calls whose errors must not reach the application, or are the only sign of failure: same
// parameters, and a result that reports the failure. They wait for the server, so they are for rare calls.
#pragma once

#include <mutex>

#include <X11/Xlib.h>
#include <X11/Xproto.h>

#include "host/platform/x11/glx.h"
#include "host/platform/x11/x_errors.h"

namespace host::platform::x11::calls {

// A trap catches the errors of a whole display, so one thread traps at a time.
inline std::mutex &trapMutex() {
    static auto *mutex = new std::mutex;
    return *mutex;
}

// None when the server rejects the parent, the visual or the size.
inline Window createWindow(Display *display, Window parent, int x, int y, unsigned width, unsigned height,
                           unsigned borderWidth, int depth, unsigned windowClass, Visual *visual, unsigned long mask,
                           XSetWindowAttributes *attributes) {
    const std::lock_guard lock(trapMutex());
    ErrorTrap trap(display, X_CreateWindow);
    const Window window =
        XCreateWindow(display, parent, x, y, width, height, borderWidth, depth, windowClass, visual, mask, attributes);
    return trap.sawError() ? None : window;
}

// None when the host rejects the size or the config.
inline GLXPbuffer createPbuffer(Display *display, GLXFBConfig config, const int *attributes) {
    int glxOpcode = 0, firstEvent = 0, firstError = 0;
    if (!XQueryExtension(display, "GLX", &glxOpcode, &firstEvent, &firstError)) return None;
    const std::lock_guard lock(trapMutex());
    ErrorTrap trap(display, glxOpcode);
    const GLXPbuffer buffer = glx().createPbuffer(display, config, attributes);
    return trap.sawError() ? None : buffer;
}

// None when the host rejects the pixmap with the config.
inline GLXPixmap createPixmap(Display *display, GLXFBConfig config, Pixmap pixmap) {
    const std::lock_guard lock(trapMutex());
    ErrorTrap trap(display);
    const GLXPixmap drawable = glx().createPixmap(display, config, pixmap, nullptr);
    return trap.sawError() ? None : drawable;
}

// For displays of the application: the errors of this call are caught, and its handler receives none of them. No lock
// is held, since earlier errors of the application may be delivered meanwhile.
inline Bool makeContextCurrent(Display *display, GLXDrawable draw, GLXDrawable read, GLXContext context) {
    const ErrorTrap trap(display);
    const Bool isCurrent = glx().makeContextCurrent(display, draw, read, context);
    XSync(display, False);
    return isCurrent;
}

} // namespace host::platform::x11::calls
