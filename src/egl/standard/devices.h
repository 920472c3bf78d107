// The one device that desktop programs see: the host's OpenGL. EGL_EXT_device_enumeration and EGL_EXT_device_query.
#pragma once

#include "egl/egl_api.h"

namespace egl::standard {

EGLBoolean EGLAPIENTRY queryDevices(EGLint maxDevices, EGLDeviceEXT *devices, EGLint *count);
// No device has attributes: returns EGL_BAD_DEVICE_EXT or EGL_BAD_ATTRIBUTE.
EGLBoolean EGLAPIENTRY queryDeviceAttrib(EGLDeviceEXT device, EGLint attribute, EGLAttrib *value);
// Only EGL_EXTENSIONS is known; the string lives as long as the process.
const char *EGLAPIENTRY queryDeviceString(EGLDeviceEXT device, EGLint name);
// Only EGL_DEVICE_EXT is known, on an initialised display.
EGLBoolean EGLAPIENTRY queryDisplayAttrib(EGLDisplay dpy, EGLint attribute, EGLAttrib *value);

} // namespace egl::standard
