// eglMakeCurrent and what is current.
#include "egl/binding.h"
#include "egl/entry_frame.h"

namespace egl {

namespace {

EGLBoolean releaseCurrent(Display &display) {
    unbindCurrent(display);
    if (!host::makeHostContextCurrent(nullptr, {})) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    return succeed(EGL_TRUE);
}

bool isBoundElsewhere(const Context &context) {
    return context.boundToThread && (!threadRecord.current || threadRecord.current->handle != context.handle);
}

EGLBoolean makeCurrent(Display &display, EGLSurface drawHandle, EGLSurface readHandle, EGLContext ctx) {
    const auto context = display.findContext(ctx);
    if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
    if (isBoundElsewhere(*context)) return fail(EGL_BAD_ACCESS, EGL_FALSE);
    // Before anything of the new context is tried: a bind that fails has lost the old one, and callers rely on that.
    if (threadRecord.current && threadRecord.current->handle != context->handle) unbindCurrent(display);

    if (!drawHandle && !readHandle) {
        return bindSurfaceless(*context) ? succeed(EGL_TRUE) : fail(EGL_BAD_ALLOC, EGL_FALSE);
    }
    const auto draw = display.findSurface(drawHandle);
    const auto read = display.findSurface(readHandle);
    if (!draw || !read) return fail(EGL_BAD_SURFACE, EGL_FALSE);
    return bindContext(*context, draw, read) ? succeed(EGL_TRUE) : fail(EGL_BAD_ALLOC, EGL_FALSE);
}

} // namespace

} // namespace egl

using namespace egl;

EGLBoolean EGLAPIENTRY eglMakeCurrent(EGLDisplay dpy, EGLSurface draw, EGLSurface read, EGLContext ctx) {
    return entry(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        if (!ctx && !draw && !read) return releaseCurrent(display);
        return makeCurrent(display, draw, read, ctx);
    });
}

EGLContext EGLAPIENTRY eglGetCurrentContext(void) {
    const Context *current = threadRecord.current;
    return succeed(current ? asHandle<EGLContext>(current->handle) : EGL_NO_CONTEXT);
}

EGLDisplay EGLAPIENTRY eglGetCurrentDisplay(void) {
    return succeed(threadRecord.current ? static_cast<EGLDisplay>(threadRecord.currentDisplay) : EGL_NO_DISPLAY);
}

EGLSurface EGLAPIENTRY eglGetCurrentSurface(EGLint readdraw) {
    const Context *current = threadRecord.current;
    if (!current) return succeed(EGL_NO_SURFACE);
    if (readdraw != EGL_DRAW && readdraw != EGL_READ) return fail(EGL_BAD_PARAMETER, EGL_NO_SURFACE);
    const auto [draw, read] = current->surfaces();
    const auto &surface = readdraw == EGL_DRAW ? draw : read;
    if (!surface || current->isSurfaceless()) return succeed(EGL_NO_SURFACE);
    return succeed(asHandle<EGLSurface>(surface->handle));
}
