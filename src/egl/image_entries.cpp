// EGL images: records that the back end reads. The attribute list is never looked at.
#include "egl/entry_frame.h"

namespace egl {

namespace {

// An error's number in the place of a boolean: destroying an unknown image looks like a success and sets no error.
constexpr EGLBoolean unknownImageResult = EGL_BAD_PARAMETER;

} // namespace

} // namespace egl

using namespace egl;

EGLImage EGLAPIENTRY eglCreateImage(EGLDisplay dpy, EGLContext ctx, EGLenum target, EGLClientBuffer buffer,
                                    const EGLAttrib *) {
    return entry(dpy, EGL_NO_IMAGE, [&](Display &display) {
        switch (target) {
        case EGL_GL_TEXTURE_2D:
            break;
        case EGL_NATIVE_BUFFER_ANDROID:
            if (ctx != EGL_NO_CONTEXT) return fail(EGL_BAD_CONTEXT, EGL_NO_IMAGE);
            break;
        default:
            return fail(EGL_BAD_PARAMETER, EGL_NO_IMAGE);
        }
        return succeed(display.createImage(target, buffer));
    });
}

EGLBoolean EGLAPIENTRY eglDestroyImage(EGLDisplay dpy, EGLImage image) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        if (!display.destroyImage(image)) return unknownImageResult;
        return succeed(EGL_TRUE);
    });
}
