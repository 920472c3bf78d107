// The context rules of the EGL standard, which apply to desktop clients in place of a device's.
#pragma once

#include "egl/context.h"
#include "egl/egl_api.h"
#include "host/pixel_format.h"
#include "profiles/config.h"
#include "profiles/device_profile.h"

namespace egl::standard {

// Parses the list into the record. Returns the error, EGL_SUCCESS for none. A null list is an empty one.
[[nodiscard]] EGLint readContextAttributes(const Config &config, const DeviceProfile &profile, const EGLint *attributes,
                                           ContextAttribs &attribs);

// Parses one pair. Returns its error; versions are checked together at the end.
[[nodiscard]] EGLint readPair(EGLint attribute, EGLint value, ContextAttribs &attribs);
// The error of the robustness, debugging and freedom of errors that the record requests.
[[nodiscard]] EGLint promiseError(const Config &config, const ContextAttribs &attribs);

// Whether the host can create robust contexts on the config.
[[nodiscard]] bool canBeRobust(const Config &config);
// The robustness that the record requests of the host context. Nothing if the record was not read by these rules.
[[nodiscard]] host::Robustness robustnessOf(const ContextAttribs &attribs);

// Returns the error of eglQueryContext.
[[nodiscard]] EGLint queryContext(const Context &context, EGLint attribute, EGLint *value);

} // namespace egl::standard
