// eglMakeCurrent and what is current.
#include "egl/binding.h"
#include "egl/entry_frame.h"

namespace egl {

namespace {

EGLBoolean releaseCurrent(Display &display) {
    unbindCurrent(display);
    const bool isReleased = host::makeHostContextCurrent(nullptr, nullptr) != host::HostBinding::failed;
    return isReleased ? succeed(EGL_TRUE) : fail(EGL_BAD_ALLOC, EGL_FALSE);
}

EGLBoolean makeCurrent(Display &display, EGLSurface drawHandle, EGLSurface readHandle, EGLContext ctx) {
    const auto context = display.findContext(ctx);
    if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
    if (!prepareThread()) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    BindClaim claim(*context);
    if (!claim.isHeld()) return fail(EGL_BAD_ACCESS, EGL_FALSE);
    // Before anything of the new context is tried: a bind that fails has lost the old one. The handles are compared, as
    // they are everywhere: a context of another display that has the same number is not unbound.
    if (threadRecord.current && threadRecord.current->handle != context->handle) unbindCurrent(display);

    bool isBound = false;
    if (!drawHandle && !readHandle) {
        isBound = bindSurfaceless(*context);
    } else {
        const auto draw = display.findSurface(drawHandle);
        const auto read = display.findSurface(readHandle);
        if (!draw || !read) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        isBound = bindContext(*context, draw, read);
    }
    if (!isBound) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    claim.keep();
    return succeed(EGL_TRUE);
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
    const auto &surface = readdraw == EGL_DRAW ? current->surfaces.draw : current->surfaces.read;
    if (!surface || current->attribs.surfaceless) return succeed(EGL_NO_SURFACE);
    return succeed(asHandle<EGLSurface>(surface->handle));
}
