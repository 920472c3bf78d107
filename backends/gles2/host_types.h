// Vertex and pixel types with different values on the host.
#pragma once

#include "es_gl.h"

// The extensions of ES 2 have another value for half floats.
[[nodiscard]] constexpr GLenum hostType(GLenum type) {
    return type == GL_HALF_FLOAT_OES ? GLenum(GL_HALF_FLOAT) : type;
}
