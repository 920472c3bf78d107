// eglBindTexImage and eglReleaseTexImage. A bind is a one-time copy: no link between surface and texture remains.
#include "egl/context.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/standard/pbuffer_textures.h"
#include "egl/surface.h"
#include "foundation/gl_types.h"

namespace egl {

namespace {

bool canBeBound(Surface &surface) {
    const EGLint format = surface.attribute(EGL_TEXTURE_FORMAT);
    return surface.hostSurface && surface.hostSurface->isPBuffer() == 1 && surface.attribute(EGL_MIPMAP_TEXTURE) != 1 &&
           (format == EGL_TEXTURE_RGB || format == EGL_TEXTURE_RGBA);
}

// On devices: copies from the current read surface, which is this surface only if the application bound it. The target
// is the texture that is bound on the host, without the back end.
void copyToBoundTexture(Surface &surface) {
    const host::EGL &hostEGL = state().hostEGL();
    if (!hostEGL.glCopyTexImage2D) return;
    const uint32_t format = surface.attribute(EGL_TEXTURE_FORMAT) == EGL_TEXTURE_RGB ? GL_RGB : GL_RGBA;
    hostEGL.glCopyTexImage2D(GL_TEXTURE_2D, 0, format, 0, 0, surface.attribute(EGL_WIDTH),
                             surface.attribute(EGL_HEIGHT), 0);
}

} // namespace

} // namespace egl

using namespace egl;

EGLBoolean EGLAPIENTRY eglBindTexImage(EGLDisplay dpy, EGLSurface surface, EGLint buffer) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        if (buffer != EGL_BACK_BUFFER) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        const auto found = display.findSurface(surface);
        if (!found || !canBeBound(*found)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (!threadRecord.current) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
        if (desktop_clients::isOn()) return finish(standard::copyPbufferToTexture(*threadRecord.current, *found));
        copyToBoundTexture(*found);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglReleaseTexImage(EGLDisplay dpy, EGLSurface surface, EGLint buffer) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!display.findSurface(surface)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (buffer != EGL_BACK_BUFFER) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        return succeed(EGL_TRUE);
    });
}
