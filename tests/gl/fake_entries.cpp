// The EGL entries that lookups hand out, and a load that succeeds or fails as a test wants.
#include "fake_entries.h"

#include "egl/desktop_clients.h"
#include "egl/extension_entries.h"
#include "egl/state.h"

bool fake::isLoadable = true;

namespace egl {

bool ensureLoaded() {
    return fake::isLoadable;
}

// None of them is ever called.
EGLSync createSyncKHR(EGLDisplay, EGLenum, const EGLint *) {
    return {};
}
EGLBoolean getSyncAttribKHR(EGLDisplay, EGLSync, EGLint, EGLint *) {
    return {};
}
EGLBoolean swapBuffersWithDamage(EGLDisplay, EGLSurface, const EGLint *, EGLint) {
    return {};
}
EGLBoolean setDamageRegionKHR(EGLDisplay, EGLSurface, EGLint *, EGLint) {
    return {};
}
EGLDisplay getPlatformDisplayEXT(EGLenum, void *, const EGLint *) {
    return {};
}

// No desktop client is served.
desktop_clients::Function desktop_clients::findEntry(const char *) {
    return nullptr;
}

} // namespace egl

EGLBoolean eglDestroySync(EGLDisplay, EGLSync) {
    return {};
}
EGLint eglClientWaitSync(EGLDisplay, EGLSync, EGLint, EGLTime) {
    return {};
}
EGLBoolean eglWaitSync(EGLDisplay, EGLSync, EGLint) {
    return {};
}
EGLImage eglCreateImage(EGLDisplay, EGLContext, EGLenum, EGLClientBuffer, const EGLAttrib *) {
    return {};
}
EGLBoolean eglDestroyImage(EGLDisplay, EGLImage) {
    return {};
}
EGLSurface eglCreateWindowSurface(EGLDisplay, EGLConfig, EGLNativeWindowType, const EGLint *) {
    return {};
}
EGLSurface eglCreatePixmapSurface(EGLDisplay, EGLConfig, EGLNativePixmapType, const EGLint *) {
    return {};
}
