#include "egl/standard/devices.h"

#include "egl/entry_frame.h"
#include "host/pixel_format.h"

namespace egl::standard {

namespace {

// The address is the device's handle.
constexpr char theDevice = 0;

EGLDeviceEXT deviceHandle() {
    return const_cast<char *>(&theDevice);
}

bool isSoftware() {
    using namespace host::platform;
    static const bool is = [] {
        PixelFormat *const format = host::makeConfiglessPixelFormat(0);
        const bool value = format && operations.pixelFormatValue(format, SoftwareRenderer) != 0;
        operations.releasePixelFormat(format);
        return value;
    }();
    return is;
}

} // namespace

EGLBoolean EGLAPIENTRY queryDevices(EGLint maxDevices, EGLDeviceEXT *devices, EGLint *count) {
    if (!count || (devices && maxDevices < 1)) return fail<EGLBoolean>(EGL_BAD_PARAMETER, EGL_FALSE);
    if (devices) *devices = deviceHandle();
    *count = 1;
    return succeed<EGLBoolean>(EGL_TRUE);
}

EGLBoolean EGLAPIENTRY queryDeviceAttrib(EGLDeviceEXT device, EGLint, EGLAttrib *) {
    return fail<EGLBoolean>(device == deviceHandle() ? EGL_BAD_ATTRIBUTE : EGL_BAD_DEVICE_EXT, EGL_FALSE);
}

const char *EGLAPIENTRY queryDeviceString(EGLDeviceEXT device, EGLint name) {
    const char *const noString = nullptr;
    if (device != deviceHandle()) return fail(EGL_BAD_DEVICE_EXT, noString);
    if (name != EGL_EXTENSIONS) return fail(EGL_BAD_PARAMETER, noString);
    return succeed<const char *>(isSoftware() ? "EGL_MESA_device_software " : "");
}

EGLBoolean EGLAPIENTRY queryDisplayAttrib(EGLDisplay dpy, EGLint attribute, EGLAttrib *value) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &) -> EGLBoolean {
        if (attribute != EGL_DEVICE_EXT) return fail<EGLBoolean>(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        if (!value) return fail<EGLBoolean>(EGL_BAD_PARAMETER, EGL_FALSE);
        *value = reinterpret_cast<EGLAttrib>(deviceHandle());
        return succeed<EGLBoolean>(EGL_TRUE);
    });
}

} // namespace egl::standard
