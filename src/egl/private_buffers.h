// Host buffers for contexts that are bound without surfaces. A context that ends leaves its buffer to the next one.
#pragma once

#include <memory>

#include "egl/egl_api.h"

namespace glove {
class ISurface;
}

namespace egl {

// Made where there is none to take. Any thread.
[[nodiscard]] std::shared_ptr<glove::ISurface> takePrivateBuffer();
// Null is allowed.
void leavePrivateBuffer(std::shared_ptr<glove::ISurface> buffer);

// What such a buffer is made of, as the list of its surface.
inline constexpr EGLint privateBufferAttributes[] = {
    EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_LARGEST_PBUFFER, 1, EGL_NONE,
};

} // namespace egl
