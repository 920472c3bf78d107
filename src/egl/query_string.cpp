// eglQueryString. All strings are constant, so they live as long as the process and depend on no state.
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/standard/extensions.h"
#include "foundation/product.h"
#include "host/egl_version.h"

#include <string>

namespace egl {

namespace {

// Every name is followed by a blank, even the last one: applications search for a name with its blank.
constexpr char displayExtensions[] = "EGL_ANDROID_image_native_buffer "
                                     "EGL_EXT_create_context_robustness "
                                     "EGL_EXT_swap_buffers_with_damage "
                                     "EGL_TWG_context_priority "
                                     "EGL_KHR_fence_sync "
                                     "EGL_KHR_gl_colorspace "
                                     "EGL_KHR_create_context "
                                     "EGL_KHR_create_context_no_error "
                                     "EGL_KHR_image "
                                     "EGL_KHR_image_base "
                                     "EGL_KHR_gl_image "
                                     "EGL_KHR_no_config_context "
                                     "EGL_KHR_partial_update "
                                     "EGL_KHR_surfaceless_context "
                                     "EGL_KHR_swap_buffers_with_damage "
                                     "EGL_KHR_wait_sync ";

constexpr char clientExtensions[] = "EGL_EXT_client_extensions EGL_EXT_platform_base ";

// Never destroyed: exit handlers may read the returned string.
const char *versionString() {
    static const std::string &version =
        *new std::string(std::to_string(host::eglMajorVersion()) + "." + std::to_string(host::eglMinorVersion()) +
                         " (" + productName + " " + productVersion + " (SDK " + productBuild + "))");
    return version.c_str();
}

const char *const noString = nullptr;

} // namespace

} // namespace egl

using namespace egl;

const char *EGLAPIENTRY eglQueryString(EGLDisplay dpy, EGLint name) {
    if (dpy == EGL_NO_DISPLAY && name == EGL_VERSION) return succeed(versionString());
    if (dpy == EGL_NO_DISPLAY && name == EGL_EXTENSIONS) {
        return succeed<const char *>(desktop_clients::isOn() ? standard::clientExtensions() : clientExtensions);
    }
    return entry(dpy, noString, [&](Display &display) {
        switch (name) {
        case EGL_VENDOR:
            return succeed<const char *>("Tarnwell Graphics");
        case EGL_VERSION:
            return succeed(versionString());
        case EGL_CLIENT_APIS:
            return succeed<const char *>(desktop_clients::haveOpenGl() ? "OpenGL OpenGL_ES" : "OpenGL_ES");
        case EGL_EXTENSIONS:
            return succeed(desktop_clients::isOn() ? standard::displayExtensions(display) : displayExtensions);
        default:
            return fail(EGL_BAD_PARAMETER, noString);
        }
    });
}
