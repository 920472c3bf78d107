// Binding a context to the calling thread: host context, back-end context and thread record come together here.
#pragma once

#include <memory>

#include "egl/context.h"
#include "egl/display.h"
#include "egl/surface.h"

namespace egl {

// Ends the thread's binding on the EGL side and does what eglDestroyContext put off. The host binding stays. The
// display is the caller's and not the context's own: a doomed context of another display is looked up in the wrong
// table, which callers accept.
void unbindCurrent(Display &display);

// False leaves the thread without a current context if it had another one.
[[nodiscard]] bool bindContext(Context &context, const std::shared_ptr<Surface> &draw,
                               const std::shared_ptr<Surface> &read);

// Binds with a pixel buffer of the library's own, which stays in the display's table until eglTerminate.
[[nodiscard]] bool bindSurfaceless(Context &context);

} // namespace egl
