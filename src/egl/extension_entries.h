// Entries that only eglGetProcAddress returns, where they differ from an exported one.
#pragma once

#include "egl/egl_api.h"

namespace egl {

// Converts its list to EGLAttrib and calls eglCreateSync.
EGLSync EGLAPIENTRY createSyncKHR(EGLDisplay dpy, EGLenum type, const EGLint *attributes);
// Stores 32 bits, also after a failure.
EGLBoolean EGLAPIENTRY getSyncAttribKHR(EGLDisplay dpy, EGLSync sync, EGLint attribute, EGLint *value);
// Returned to desktop clients only: converts its list to EGLAttrib and calls eglCreateImage.
EGLImage EGLAPIENTRY createImageKHR(EGLDisplay dpy, EGLContext ctx, EGLenum target, EGLClientBuffer buffer,
                                    const EGLint *attributes);
// Calls eglSwapBuffers; the rectangles are ignored.
EGLBoolean EGLAPIENTRY swapBuffersWithDamage(EGLDisplay dpy, EGLSurface surface, const EGLint *rects, EGLint count);
EGLBoolean EGLAPIENTRY setDamageRegionKHR(EGLDisplay dpy, EGLSurface surface, EGLint *rects, EGLint count);
// For devices, every platform is accepted and the attributes are ignored.
EGLDisplay EGLAPIENTRY getPlatformDisplayEXT(EGLenum platform, void *nativeDisplay, const EGLint *attributes);
// Returned to desktop clients only, and used by the core entry: eglCreateWindowSurface, with the window that
// desktop_clients::windowOf returns for the argument.
EGLSurface EGLAPIENTRY createPlatformPixmapSurfaceEXT(EGLDisplay dpy, EGLConfig config, void *nativePixmap,
                                                      const EGLint *attributes);
EGLSurface EGLAPIENTRY createPlatformWindowSurfaceEXT(EGLDisplay dpy, EGLConfig config, void *nativeWindow,
                                                      const EGLint *attributes);

} // namespace egl
