// Types of vertices and pixels that the host numbers otherwise.
#pragma once

#include "es_gl.h"

// The extensions of ES 2 have a number of their own for half floats.
[[nodiscard]] constexpr GLenum hostType(GLenum type) {
    return type == GL_HALF_FLOAT_OES ? GLenum(GL_HALF_FLOAT) : type;
}
