// Host buffers for contexts that are bound without surfaces. A context's buffer is reused by the next context.
#pragma once

#include <memory>

#include "egl/egl_api.h"

namespace glove {
class ISurface;
}

namespace egl {

// Created when no unused one is left. Any thread.
[[nodiscard]] std::shared_ptr<glove::ISurface> takePrivateBuffer();
// Returns a buffer for reuse. Null is allowed.
void leavePrivateBuffer(std::shared_ptr<glove::ISurface> buffer);

// The attribute list of such a buffer's surface.
inline constexpr EGLint privateBufferAttributes[] = {
    EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_LARGEST_PBUFFER, 1, EGL_NONE,
};

} // namespace egl
