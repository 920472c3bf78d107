// The platform entries of EGL 1.5: they do what the EXT functions do, with lists of EGLAttrib pairs.
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/extension_entries.h"
#include "foundation/attribute_list.h"

#include <vector>

namespace egl {

namespace {

constexpr EGLint noAttribute = 0;

// A key beyond 32 bits becomes an invalid one; values keep their low 32 bits.
std::vector<EGLint> narrowed(const EGLAttrib *attributes) {
    std::vector<EGLint> list;
    for (const auto &[name, value] : AttributeList(attributes)) {
        const auto key = static_cast<EGLint>(name);
        list.push_back(key == name ? key : noAttribute);
        list.push_back(static_cast<EGLint>(value));
    }
    list.push_back(EGL_NONE);
    return list;
}

} // namespace

EGLSurface EGLAPIENTRY createPlatformWindowSurfaceEXT(EGLDisplay dpy, EGLConfig config, void *nativeWindow,
                                                      const EGLint *attributes) {
    return eglCreateWindowSurface(dpy, config, desktop_clients::drawableOf(nativeWindow), attributes);
}

EGLSurface EGLAPIENTRY createPlatformPixmapSurfaceEXT(EGLDisplay dpy, EGLConfig config, void *nativePixmap,
                                                      const EGLint *attributes) {
    return eglCreatePixmapSurface(dpy, config, desktop_clients::drawableOf(nativePixmap), attributes);
}

} // namespace egl

using namespace egl;

EGLDisplay EGLAPIENTRY eglGetPlatformDisplay(EGLenum platform, void *nativeDisplay, const EGLAttrib *attributes) {
    return getPlatformDisplayEXT(platform, nativeDisplay, narrowed(attributes).data());
}

EGLSurface EGLAPIENTRY eglCreatePlatformWindowSurface(EGLDisplay dpy, EGLConfig config, void *nativeWindow,
                                                      const EGLAttrib *attributes) {
    return createPlatformWindowSurfaceEXT(dpy, config, nativeWindow, narrowed(attributes).data());
}

EGLSurface EGLAPIENTRY eglCreatePlatformPixmapSurface(EGLDisplay dpy, EGLConfig config, void *nativePixmap,
                                                      const EGLAttrib *attributes) {
    return createPlatformPixmapSurfaceEXT(dpy, config, nativePixmap, narrowed(attributes).data());
}
