// Entries for swapping, damage and copying.
#include "egl/call_reports.h"
#include "egl/context.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/extension_entries.h"
#include "egl/frame_pictures.h"
#include "egl/standard/binding_rules.h"
#include "egl/standard/surface_rules.h"
#include "egl/surface.h"
#include "foundation/log.h"

namespace egl {

namespace {

EGLBoolean swapBuffers(Display &display, EGLSurface surface) {
    const auto found = display.findSurface(surface);
    if (!found) return fail(EGL_BAD_SURFACE, EGL_FALSE);
    if (desktop_clients::isOn() && !standard::isDrawnTo(*found)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
    // Flushed first: a frame for a window whose map request is not sent yet would be lost.
    if (desktop_clients::isOn()) host::flushApplication(display.nativeDisplay);
    if (frame_pictures::areWanted()) [[unlikely]]
        frame_pictures::take(*found);
    found->swap();
    State::countFrame();
    return succeed(EGL_TRUE);
}

EGLBoolean setDamageRegion(Display &display, const Context &current, EGLSurface surface) {
    const auto found = display.findSurface(surface);
    if (!found) return fail(EGL_BAD_SURFACE, EGL_FALSE);
    if (found != current.surfaces.draw || found->attribute(EGL_SWAP_BEHAVIOR) != EGL_BUFFER_DESTROYED) {
        return fail(EGL_BAD_MATCH, EGL_FALSE);
    }
    // The application must have queried the age since the last swap, and can set the region once per frame.
    if (found->damageRegionSet || !found->bufferAgeQueried) return fail(EGL_BAD_ACCESS, EGL_FALSE);
    found->damageRegionSet = true;
    return succeed(EGL_TRUE);
}

EGLint copyBuffers(const Display &display, const Surface &surface, uint64_t pixmap) {
    if (const EGLint error = standard::pixmapError(display, pixmap, surface.format); error != EGL_SUCCESS) return error;
    if (!standard::isDrawnTo(surface)) return EGL_BAD_SURFACE;
    return host::copyToPixmap(display.nativeDisplay, pixmap, surface.format) ? EGL_SUCCESS : EGL_BAD_ALLOC;
}

} // namespace

EGLBoolean EGLAPIENTRY swapBuffersWithDamage(EGLDisplay dpy, EGLSurface surface, const EGLint *, EGLint) {
    return eglSwapBuffers(dpy, surface);
}

EGLBoolean EGLAPIENTRY setDamageRegionKHR(EGLDisplay dpy, EGLSurface surface, EGLint *, EGLint) {
    // Checked before the load and the display, so that this error precedes EGL_BAD_DISPLAY.
    const auto current = currentContext();
    if (!current) return fail(EGL_BAD_MATCH, EGL_FALSE);
    return entry(dpy, EGL_FALSE, [&](Display &display) { return setDamageRegion(display, *current, surface); });
}

} // namespace egl

using namespace egl;

EGLBoolean EGLAPIENTRY eglSwapBuffers(EGLDisplay dpy, EGLSurface surface) {
    const EGLBoolean answer = entry(dpy, EGL_FALSE, [&](Display &display) { return swapBuffers(display, surface); });
    return reports::told(answer, reports::swap, surface);
}

// On devices it fails without an error.
EGLBoolean EGLAPIENTRY eglCopyBuffers(EGLDisplay dpy, EGLSurface surface, EGLNativePixmapType pixmap) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        const auto found = display.findSurface(surface);
        if (!found) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (desktop_clients::isOn()) return finish(copyBuffers(display, *found, hostWord(pixmap)));
        logMessage(LogWarning, "eglCopyBuffers is not currently supported by Zelvane.");
        return succeed(EGL_FALSE);
    });
}
