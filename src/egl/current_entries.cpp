// eglMakeCurrent and what is current.
#include "egl/bind_memos.h"
#include "egl/binding.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"

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

// Only desktop clients are told: for devices all configs stand on one format. A context without a config, which has the
// id 0, goes with every surface.
bool fitTogether(const Context &context, const SurfacePair &surfaces) {
    if (!desktop_clients::isOn() || context.config->attributeOr0(EGL_CONFIG_ID) == 0) return true;
    const auto sizes = drawableSizes(*context.config);
    return surfaces.draw->sizes == sizes && surfaces.read->sizes == sizes;
}

EGLBoolean makeCurrent(Display &display, const BindRequest &request) {
    if (!prepareThread()) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    const uint64_t version = display.handlesVersion();
    const BindMemo *const memo = threadRecord.hold->memos.find(request);
    auto context = memo ? memo->context.lock() : display.findContext(request.context);
    if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
    BindClaim claim(*context);
    if (!claim.isHeld()) return fail(EGL_BAD_ACCESS, EGL_FALSE);
    // Before anything of the new context is tried: a bind that fails has lost the old one. The handles are compared, as
    // they are everywhere: a context of another display that has the same number is not unbound.
    if (threadRecord.current && threadRecord.current->handle != context->handle) unbindCurrent(display);

    if (!request.draw && !request.read) {
        if (!bindSurfaceless(context)) return fail(EGL_BAD_ALLOC, EGL_FALSE);
    } else {
        SurfacePair found;
        const bool isKnown = hasSurfacesOf(*context, memo);
        if (!isKnown) found = {display.findSurface(request.draw), display.findSurface(request.read)};
        const SurfacePair &surfaces = isKnown ? context->surfaces : found;
        if (!surfaces.draw || !surfaces.read) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (!isKnown && !fitTogether(*context, surfaces)) return fail(EGL_BAD_MATCH, EGL_FALSE);
        if (!bindContext(context, surfaces)) return fail(EGL_BAD_ALLOC, EGL_FALSE);
        if (!isKnown) {
            threadRecord.hold->memos.note({request, version, context, surfaces.draw.get(), surfaces.read.get()});
        }
    }
    claim.keep();
    return succeed(EGL_TRUE);
}

} // namespace

} // namespace egl

using namespace egl;

EGLBoolean EGLAPIENTRY eglMakeCurrent(EGLDisplay dpy, EGLSurface draw, EGLSurface read, EGLContext ctx) {
    return entry(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        if (!ctx && !draw && !read) return releaseCurrent(display);
        return makeCurrent(display, {&display, draw, read, ctx});
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
