#include "egl/standard/binding_rules.h"

#include <algorithm>

#include "egl/binding.h"
#include "egl/context.h"
#include "egl/entry_frame.h"
#include "egl/refusal.h"

namespace egl::standard {

namespace {

// A context without a config has the config id 0 and is compatible with every surface.
bool fits(const Context &context, const Surface &surface) {
    return context.config->attributeOr0(EGL_CONFIG_ID) == 0 || surface.sizes == drawableSizes(*context.config);
}

// Waits for first binds of the group, which temporarily claim contexts that are not current on any thread.
bool isBoundElsewhere(const Context &context) {
    if (threadRecord.current == &context || !context.boundToThread) return false;
    const std::lock_guard lock(context.group->firstBinds);
    return context.boundToThread;
}

} // namespace

EGLint bindError(const Display &display, const BindRequest &request) {
    // Surfaces without a context, or only one surface.
    if (!request.context || !request.draw != !request.read)
        return refusals::because(refusals::Rule::surfacesWithoutContext, EGL_BAD_MATCH);
    const auto context = display.findContext(request.context);
    if (!context) return EGL_BAD_CONTEXT;
    if (isBoundElsewhere(*context)) return EGL_BAD_ACCESS;
    if (!request.draw) return EGL_SUCCESS;
    const auto draw = display.findSurface(request.draw), read = display.findSurface(request.read);
    if (!draw || !read) return EGL_BAD_SURFACE;
    if (fits(*context, *draw) && fits(*context, *read)) return EGL_SUCCESS;
    return refusals::because(refusals::Rule::otherConfig, EGL_BAD_MATCH);
}

bool isDrawnTo(const Surface &surface) {
    return threadRecord.current && threadRecord.current->surfaces.draw.get() == &surface;
}

EGLint clampedSwapInterval(const Config &config, EGLint interval) {
    const EGLint least = config.attributeOr0(EGL_MIN_SWAP_INTERVAL);
    return std::clamp(interval, least, std::max(least, config.attributeOr0(EGL_MAX_SWAP_INTERVAL)));
}

void releaseThread() {
    threadRecord.api = EGL_OPENGL_ES_API;
    releaseCurrentContext();
}

void releaseCurrentContext() {
    if (!threadRecord.current) return;
    unbindCurrent(threadRecord.current->display);
    static_cast<void>(host::makeHostContextCurrent(nullptr, nullptr));
}

EGLBoolean releaseCurrent(EGLDisplay dpy) {
    if (!ensureLoaded()) return fail(EGL_NOT_INITIALIZED, EGL_FALSE);
    if (!state().findDisplay(dpy)) return fail(EGL_BAD_DISPLAY, EGL_FALSE);
    releaseCurrentContext();
    return succeed(EGL_TRUE);
}

EGLBoolean terminate(EGLDisplay dpy) {
    if (!ensureLoaded()) return fail(EGL_NOT_INITIALIZED, EGL_FALSE);
    Display *display = state().findDisplay(dpy);
    if (!display) return fail(EGL_BAD_DISPLAY, EGL_FALSE);
    const auto contexts = display->contexts();
    if (display->isInitialized()) display->terminate();
    for (const auto &context : contexts)
        context->deleteOnceLetGo();
    return succeed(EGL_TRUE);
}

} // namespace egl::standard
