// Entries that make, destroy and ask surfaces.
#include "egl/entry_frame.h"
#include "egl/surface.h"

#include <algorithm>
#include <span>

namespace egl {

namespace {

constexpr EGLint windowAttributes[] = {EGL_RENDER_BUFFER, EGL_VG_COLORSPACE, EGL_VG_ALPHA_FORMAT, EGL_GL_COLORSPACE};
constexpr EGLint pbufferAttributes[] = {
    EGL_WIDTH,          EGL_HEIGHT,        EGL_LARGEST_PBUFFER, EGL_TEXTURE_FORMAT, EGL_TEXTURE_TARGET,
    EGL_MIPMAP_TEXTURE, EGL_VG_COLORSPACE, EGL_VG_ALPHA_FORMAT, EGL_GL_COLORSPACE,
};

// Looks at the keys alone; values are kept as they come.
bool areKeysIn(const EGLint *attributes, std::span<const EGLint> accepted) {
    for (; attributes && *attributes != EGL_NONE; attributes += 2) {
        if (std::ranges::find(accepted, *attributes) == accepted.end()) return false;
    }
    return true;
}

EGLSurface finishSurface(const std::shared_ptr<Surface> &surface) {
    if (!surface) return fail(EGL_BAD_ALLOC, EGL_NO_SURFACE);
    return succeed(asHandle<EGLSurface>(surface->handle));
}

} // namespace

} // namespace egl

using namespace egl;

// The config's surface type is not looked at, unlike with the other kinds; applications rely on it.
EGLSurface EGLAPIENTRY eglCreateWindowSurface(EGLDisplay dpy, EGLConfig configHandle, EGLNativeWindowType window,
                                              const EGLint *attributes) {
    return entry(dpy, EGL_NO_SURFACE, [&](Display &display) {
        const auto config = display.findConfig(configHandle);
        if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_SURFACE);
        if (!window) return fail(EGL_BAD_NATIVE_WINDOW, EGL_NO_SURFACE);
        if (!areKeysIn(attributes, windowAttributes)) return fail(EGL_BAD_ATTRIBUTE, EGL_NO_SURFACE);
        return finishSurface(display.createWindowSurface(*config, hostWord(window), attributes));
    });
}

EGLSurface EGLAPIENTRY eglCreatePbufferSurface(EGLDisplay dpy, EGLConfig configHandle, const EGLint *attributes) {
    return entry(dpy, EGL_NO_SURFACE, [&](Display &display) {
        const auto config = display.findConfig(configHandle);
        if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_SURFACE);
        if (!(config->attributeOr0(EGL_SURFACE_TYPE) & EGL_PBUFFER_BIT)) return fail(EGL_BAD_MATCH, EGL_NO_SURFACE);
        if (!areKeysIn(attributes, pbufferAttributes)) return fail(EGL_BAD_ATTRIBUTE, EGL_NO_SURFACE);
        return finishSurface(display.createPbufferSurface(*config, attributes));
    });
}

// The pixmap is not used at all: the surface is a handle and a map of attributes.
EGLSurface EGLAPIENTRY eglCreatePixmapSurface(EGLDisplay dpy, EGLConfig configHandle, EGLNativePixmapType,
                                              const EGLint *attributes) {
    return entry(dpy, EGL_NO_SURFACE, [&](Display &display) {
        const auto config = display.findConfig(configHandle);
        if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_SURFACE);
        if (attributes && *attributes != EGL_NONE) return fail(EGL_BAD_ATTRIBUTE, EGL_NO_SURFACE);
        if (!(config->attributeOr0(EGL_SURFACE_TYPE) & EGL_PIXMAP_BIT)) return fail(EGL_BAD_MATCH, EGL_NO_SURFACE);
        return finishSurface(display.createPixmapSurface(*config, attributes));
    });
}

EGLSurface EGLAPIENTRY eglCreatePbufferFromClientBuffer(EGLDisplay dpy, EGLenum, EGLClientBuffer, EGLConfig,
                                                        const EGLint *) {
    return entry(dpy, EGL_NO_SURFACE, [](Display &) { return fail(EGL_BAD_PARAMETER, EGL_NO_SURFACE); });
}

EGLBoolean EGLAPIENTRY eglDestroySurface(EGLDisplay dpy, EGLSurface surface) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!display.findSurface(surface)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        // One that has left the table already is found while it is current, and cannot be destroyed twice.
        if (!display.destroySurface(surface)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglQuerySurface(EGLDisplay dpy, EGLSurface surface, EGLint attribute, EGLint *value) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        const auto found = display.findSurface(surface);
        if (!found) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (!value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        if (!found->query(attribute, value)) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        return succeed(EGL_TRUE);
    });
}

// Takes three attributes and drops their values: a later query answers as before, and callers rely on the success.
EGLBoolean EGLAPIENTRY eglSurfaceAttrib(EGLDisplay dpy, EGLSurface surface, EGLint attribute, EGLint) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!display.findSurface(surface)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        switch (attribute) {
        case EGL_MIPMAP_LEVEL:
        case EGL_SWAP_BEHAVIOR:
        case EGL_MULTISAMPLE_RESOLVE:
            return succeed(EGL_TRUE);
        default:
            return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        }
    });
}
