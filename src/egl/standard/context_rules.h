// Contexts by the rules of the EGL standard, which desktop clients get in place of a device's.
#pragma once

#include "egl/context.h"
#include "egl/egl_api.h"
#include "host/pixel_format.h"
#include "profiles/config.h"
#include "profiles/device_profile.h"

namespace egl::standard {

// Reads the list into the record. Gives the error, EGL_SUCCESS for none. A null list is an empty one.
[[nodiscard]] EGLint readContextAttributes(const Config &config, const DeviceProfile &profile, const EGLint *attributes,
                                           ContextAttribs &attribs);

// Whether the host gives contexts on the config that promise anything after a fault.
[[nodiscard]] bool canBeRobust(const Config &config);
// What the record asks of the host context. Nothing where it was not read by these rules.
[[nodiscard]] host::Robustness robustnessOf(const ContextAttribs &attribs);

// The error of eglQueryContext.
[[nodiscard]] EGLint queryContext(const Context &context, EGLint attribute, EGLint *value);

} // namespace egl::standard
