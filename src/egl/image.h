// An EGL image: a small record that back ends read through its handle, which is its address.
#pragma once

#include <cstddef>
#include <cstdint>

namespace egl {

// The layout is shared with the back ends.
struct EglImage {
    uint32_t target; // EGL_GL_TEXTURE_2D_KHR or EGL_NATIVE_BUFFER_ANDROID
    uint64_t buffer; // the EGLClientBuffer from the application; neither checked nor dereferenced here
};
static_assert(offsetof(EglImage, target) == 0 && offsetof(EglImage, buffer) == 8);

} // namespace egl
