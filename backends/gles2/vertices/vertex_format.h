// The formats of vertex arrays.
#pragma once

#include "es_gl.h"

#include <cstddef>

// As an application specifies it.
struct VertexFormat {
    GLint size = 4;
    GLenum type = GL_FLOAT;
    GLboolean isNormalized = GL_FALSE;
    bool isInteger = false;
    GLsizei stride = 0; // 0 means tightly packed elements

    bool operator==(const VertexFormat &) const = default;
};

// Bytes of an array's element; 0 for a format that ES does not have.
[[nodiscard]] constexpr size_t vertexSize(const VertexFormat &format) {
    if (format.size < 1 || format.size > 4) return 0;
    const auto count = static_cast<size_t>(format.size);
    switch (format.type) {
    case GL_BYTE:
    case GL_UNSIGNED_BYTE:
        return count;
    case GL_SHORT:
    case GL_UNSIGNED_SHORT:
        return count * 2;
    case GL_INT:
    case GL_UNSIGNED_INT:
        return count * 4;
    default:
        break;
    }
    if (format.isInteger) return 0;
    switch (format.type) {
    case GL_HALF_FLOAT:
        return count * 2;
    case GL_FLOAT:
    case GL_FIXED:
        return count * 4;
    case GL_INT_2_10_10_10_REV:
    case GL_UNSIGNED_INT_2_10_10_10_REV:
        return format.size == 4 ? 4 : 0;
    default:
        return 0;
    }
}
