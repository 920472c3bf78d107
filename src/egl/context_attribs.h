// The attribute list of eglCreateContext, parsed into the record that is passed to back ends.
#pragma once

#include "egl/egl_api.h"
#include "profiles/config.h"
#include "zelvane/back_end.h"

namespace egl {

// The attributes of a context without a list: OpenGL ES 1.0 at medium priority.
[[nodiscard]] ContextAttribs defaultContextAttribs();

// False with the error set for a version that the config lacks (EGL_BAD_CONFIG) or an unknown attribute
// (EGL_BAD_ATTRIBUTE). A null list is an empty one.
[[nodiscard]] bool parseContextAttribs(const Config &config, const EGLint *attributes, ContextAttribs &attribs);

} // namespace egl
