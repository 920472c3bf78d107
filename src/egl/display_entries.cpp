// Entries that concern a display as a whole.
#include "egl/call_reports.h"
#include "egl/context.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/extension_entries.h"
#include "egl/refusal.h"
#include "egl/standard/binding_rules.h"
#include "egl/standard/platforms.h"
#include "host/egl_version.h"

namespace egl {

namespace {

// After a failed load the display is EGL_NO_DISPLAY and the error EGL_SUCCESS: a missing display is no error.
EGLDisplay getDisplay(uint64_t nativeId, uint64_t hostDisplay) {
    if (!ensureLoaded()) return succeed(EGL_NO_DISPLAY);
    const std::lock_guard lock(stateMutex());
    Display *display = state().findDisplayByNativeId(nativeId);
    if (!display) display = &state().createDisplay(nativeId, hostDisplay);
    return succeed(static_cast<EGLDisplay>(display));
}

constexpr uint64_t hostDefaultDisplay = 0;

EGLBoolean initialize(EGLDisplay dpy, EGLint *major, EGLint *minor) {
    if (!ensureLoaded()) return fail(refusals::because(refusals::Rule::notLoaded, EGL_NOT_INITIALIZED), EGL_FALSE);
    const std::lock_guard lock(stateMutex());
    Display *display = state().findDisplay(dpy);
    if (!display) return fail(EGL_BAD_DISPLAY, EGL_FALSE);
    if (major) *major = host::eglMajorVersion();
    if (minor) *minor = host::eglMinorVersion();
    display->initialize(state().profile());
    return succeed(EGL_TRUE);
}

} // namespace

EGLDisplay EGLAPIENTRY getPlatformDisplayEXT(EGLenum platform, void *nativeDisplay, const EGLint *attributes) {
    const uint64_t id = hostWord(nativeDisplay);
    if (!desktop_clients::isOn()) return getDisplay(id, id);
    const EGLint error = standard::platformDisplayError(platform, nativeDisplay, attributes);
    if (error != EGL_SUCCESS) return fail(error, EGL_NO_DISPLAY);
    return platform == EGL_PLATFORM_SURFACELESS_MESA ? getDisplay(standard::surfacelessDisplay, hostDefaultDisplay)
                                                     : getDisplay(id, id);
}

} // namespace egl

using namespace egl;

EGLDisplay EGLAPIENTRY eglGetDisplay(EGLNativeDisplayType displayId) {
    const uint64_t id = hostWord(displayId);
    return getDisplay(id, displayId == EGL_DEFAULT_DISPLAY ? hostDefaultDisplay : id);
}

EGLBoolean EGLAPIENTRY eglInitialize(EGLDisplay dpy, EGLint *major, EGLint *minor) {
    return reports::told(initialize(dpy, major, minor), reports::initialize, dpy);
}

EGLBoolean EGLAPIENTRY eglTerminate(EGLDisplay dpy) {
    if (desktop_clients::isOn()) return standard::terminate(dpy);
    return entry(dpy, EGL_FALSE, [](Display &display) {
        display.terminate();
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglSwapInterval(EGLDisplay dpy, EGLint interval) {
    return entry(dpy, EGL_FALSE, [&](Display &) {
        const auto current = currentContext();
        if (!current) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
        if (!current->surfaces.draw) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (desktop_clients::isOn()) interval = standard::clampedSwapInterval(*current->config, interval);
        host::setHostSwapInterval(current->hostContext().get(), interval);
        return succeed(EGL_TRUE);
    });
}
