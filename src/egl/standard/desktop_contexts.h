// The attributes of contexts of desktop OpenGL, which desktop mode offers on request.
#pragma once

#include "egl/egl_api.h"
#include "host/pixel_format.h"
#include "profiles/config.h"
#include "zelvane/back_end.h"

namespace egl::standard {

// Parses the list into a record that has the defaults of OpenGL ES. Returns the error, EGL_SUCCESS for none. A null
// list is an empty one.
[[nodiscard]] EGLint readDesktopContextAttributes(const Config &config, const EGLint *attributes,
                                                  ContextAttribs &attribs);

// What such a record requests of the host.
[[nodiscard]] host::DesktopContext desktopContextOf(const ContextAttribs &attribs);

} // namespace egl::standard
