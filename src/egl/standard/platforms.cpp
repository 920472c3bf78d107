#include "egl/standard/platforms.h"

#include "foundation/attribute_list.h"

namespace egl::standard {

namespace {

bool isAttribute(EGLenum platform, EGLint attribute) {
    return platform == EGL_PLATFORM_X11_KHR && attribute == EGL_PLATFORM_X11_SCREEN_KHR;
}

} // namespace

EGLint platformDisplayError(EGLenum platform, const void *nativeDisplay, const EGLint *attributes) {
    const bool isSurfaceless = platform == EGL_PLATFORM_SURFACELESS_MESA;
    if (platform != EGL_PLATFORM_X11_KHR && !isSurfaceless) return EGL_BAD_PARAMETER;
    if (isSurfaceless && nativeDisplay) return EGL_BAD_PARAMETER;
    for (const auto &[name, value] : AttributeList(attributes)) {
        if (!isAttribute(platform, name)) return EGL_BAD_ATTRIBUTE;
    }
    return EGL_SUCCESS;
}

} // namespace egl::standard
