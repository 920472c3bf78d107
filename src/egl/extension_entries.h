// Entries that applications reach through eglGetProcAddress alone, where they differ from an exported one.
#pragma once

#include "egl/egl_api.h"

namespace egl {

// Widens its list and goes on as eglCreateSync.
EGLSync EGLAPIENTRY createSyncKHR(EGLDisplay dpy, EGLenum type, const EGLint *attributes);
// Stores 32 bits, also after a failure.
EGLBoolean EGLAPIENTRY getSyncAttribKHR(EGLDisplay dpy, EGLSync sync, EGLint attribute, EGLint *value);
// Handed out for desktop clients alone: widens its list and goes on as eglCreateImage.
EGLImage EGLAPIENTRY createImageKHR(EGLDisplay dpy, EGLContext ctx, EGLenum target, EGLClientBuffer buffer,
                                    const EGLint *attributes);
// eglSwapBuffers; the rectangles are not read.
EGLBoolean EGLAPIENTRY swapBuffersWithDamage(EGLDisplay dpy, EGLSurface surface, const EGLint *rects, EGLint count);
EGLBoolean EGLAPIENTRY setDamageRegionKHR(EGLDisplay dpy, EGLSurface surface, EGLint *rects, EGLint count);
// For devices it takes every platform and reads no attribute.
EGLDisplay EGLAPIENTRY getPlatformDisplayEXT(EGLenum platform, void *nativeDisplay, const EGLint *attributes);
// Handed out for desktop clients alone, and behind the core entry: eglCreateWindowSurface, with the window behind what
// desktop_clients::windowOf is given.
EGLSurface EGLAPIENTRY createPlatformPixmapSurfaceEXT(EGLDisplay dpy, EGLConfig config, void *nativePixmap,
                                                      const EGLint *attributes);
EGLSurface EGLAPIENTRY createPlatformWindowSurfaceEXT(EGLDisplay dpy, EGLConfig config, void *nativeWindow,
                                                      const EGLint *attributes);

} // namespace egl
