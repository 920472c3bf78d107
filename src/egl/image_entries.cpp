// EGL images: records that the back end reads. For devices the attribute list is ignored.
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/extension_entries.h"
#include "egl/standard/images.h"
#include "foundation/attribute_list.h"

#include <vector>

namespace egl {

namespace {

// An error code as the boolean result: destroying an unknown image appears to succeed and sets no error.
constexpr EGLBoolean unknownImageResult = EGL_BAD_PARAMETER;

} // namespace

EGLImage EGLAPIENTRY createImageKHR(EGLDisplay dpy, EGLContext ctx, EGLenum target, EGLClientBuffer buffer,
                                    const EGLint *attributes) {
    std::vector<EGLAttrib> wide;
    for (const auto &[name, value] : AttributeList(attributes))
        wide.insert(wide.end(), {name, value});
    wide.push_back(EGL_NONE);
    return eglCreateImage(dpy, ctx, target, buffer, wide.data());
}

} // namespace egl

using namespace egl;

EGLImage EGLAPIENTRY eglCreateImage(EGLDisplay dpy, EGLContext ctx, EGLenum target, EGLClientBuffer buffer,
                                    const EGLAttrib *attributes) {
    return entry(dpy, EGL_NO_IMAGE, [&](Display &display) {
        if (desktop_clients::isOn()) return standard::createImage(display, ctx, target, buffer, attributes);
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
        if (desktop_clients::isOn()) {
            return display.standardImages.take(image) ? succeed(EGL_TRUE) : fail(EGL_BAD_PARAMETER, EGL_FALSE);
        }
        if (!display.destroyImage(image)) return unknownImageResult;
        return succeed(EGL_TRUE);
    });
}
