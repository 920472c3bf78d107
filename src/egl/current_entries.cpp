// eglMakeCurrent, and queries of the current context and surfaces.
#include "egl/bind_memos.h"
#include "egl/binding.h"
#include "egl/call_reports.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/standard/binding_rules.h"

namespace egl {

namespace {

EGLBoolean releaseCurrent(Display &display) {
    unbindCurrent(display);
    const bool isReleased = host::makeHostContextCurrent(nullptr, nullptr) != host::HostBinding::failed;
    return isReleased ? succeed(EGL_TRUE) : fail(EGL_BAD_ALLOC, EGL_FALSE);
}

bool hasSurfacesOf(const Context &context, const BindMemo *memo) {
    return memo && context.surfaces.draw.get() == memo->draw && context.surfaces.read.get() == memo->read;
}

EGLBoolean makeCurrent(Display &display, const BindRequest &request) {
    if (!prepareThread()) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    const uint64_t version = display.handlesVersion();
    const BindMemo *const memo = threadRecord.hold->memos.find(request);
    // Desktop mode has its own checks, which may fail where a device's succeed and the other way round: devices check
    // after the old context is released, and ignore configs, since theirs share one format.
    if (!memo && desktop_clients::isOn()) {
        if (const EGLint error = standard::bindError(display, request); error != EGL_SUCCESS) {
            return fail(error, EGL_FALSE);
        }
    }
    auto context = memo ? memo->context.lock() : display.findContext(request.context);
    if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
    BindClaim claim(*context);
    if (!claim.isHeld()) return fail(EGL_BAD_ACCESS, EGL_FALSE);
    // Unbinds first: a failed bind loses the old context. Handles are compared, as in all entries, so a context of
    // another display with the same number is not unbound.
    if (threadRecord.current && threadRecord.current->handle != context->handle) unbindCurrent(display);

    if (!request.draw && !request.read) {
        if (!bindSurfaceless(std::move(context))) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    } else {
        SurfacePair found;
        const bool isKnown = hasSurfacesOf(*context, memo);
        if (!isKnown) found = {display.findSurface(request.draw), display.findSurface(request.read)};
        const SurfacePair &surfaces = isKnown ? context->surfaces : found;
        if (!surfaces.draw || !surfaces.read) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (!bindContext(std::move(context), surfaces)) return fail(EGL_BAD_ALLOC, EGL_FALSE);
        if (!isKnown) {
            threadRecord.hold->memos.note(
                {request, version, threadRecord.hold->current, surfaces.draw.get(), surfaces.read.get()});
        }
    }
    claim.keep();
    return succeed(EGL_TRUE);
}

} // namespace

} // namespace egl

using namespace egl;

EGLBoolean EGLAPIENTRY eglMakeCurrent(EGLDisplay dpy, EGLSurface draw, EGLSurface read, EGLContext ctx) {
    if (desktop_clients::isOn() && !ctx && !draw && !read) return standard::releaseCurrent(dpy);
    const EGLBoolean answer = entry(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        if (!ctx && !draw && !read) return releaseCurrent(display);
        return makeCurrent(display, {&display, draw, read, ctx});
    });
    return reports::told(answer, reports::makeCurrent, draw, read, ctx);
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
