// The minimum and maximum of an index list.
#pragma once

#include "es_gl.h"

#include <optional>

struct IndexRange {
    GLuint lowest;
    GLuint highest;
};

// The greatest value of an index type, which can be the primitive restart index.
[[nodiscard]] constexpr GLuint greatestIndex(GLenum type) {
    return type == GL_UNSIGNED_BYTE ? 0xFFu : type == GL_UNSIGNED_SHORT ? 0xFFFFu : 0xFFFFFFFFu;
}

// For count indices, at least one, of a valid type.
[[nodiscard]] IndexRange rangeOf(const void *indices, GLsizei count, GLenum type);

// The same, without the type's greatest value. Nothing when there is no other index.
[[nodiscard]] std::optional<IndexRange> rangeWithoutRestarts(const void *indices, GLsizei count, GLenum type);
