// The formats of vertex arrays.
#pragma once

#include "es_gl.h"

#include <cstddef>

// Bytes of an array's element; 0 for a format that ES does not have.
[[nodiscard]] constexpr size_t vertexSize(GLint size, GLenum type) {
    if (size < 1 || size > 4) return 0;
    const auto count = static_cast<size_t>(size);
    switch (type) {
    case GL_BYTE:
    case GL_UNSIGNED_BYTE:
        return count;
    case GL_SHORT:
    case GL_UNSIGNED_SHORT:
    case GL_HALF_FLOAT:
        return count * 2;
    case GL_INT:
    case GL_UNSIGNED_INT:
    case GL_FLOAT:
    case GL_FIXED:
        return count * 4;
    case GL_INT_2_10_10_10_REV:
    case GL_UNSIGNED_INT_2_10_10_10_REV:
        return size == 4 ? 4 : 0;
    default:
        return 0;
    }
}
