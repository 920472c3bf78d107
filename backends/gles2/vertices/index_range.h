// The least and the greatest index of a list.
#pragma once

#include "es_gl.h"

#include <optional>

struct IndexRange {
    GLuint lowest;
    GLuint highest;
};

// The greatest number of a type of indices, which can restart a primitive.
[[nodiscard]] constexpr GLuint greatestIndex(GLenum type) {
    return type == GL_UNSIGNED_BYTE ? 0xFFu : type == GL_UNSIGNED_SHORT ? 0xFFFFu : 0xFFFFFFFFu;
}

// Of count indices, at least one, of a type that has a size.
[[nodiscard]] IndexRange rangeOf(const void *indices, GLsizei count, GLenum type);

// The same where the greatest number of the type is no index. Nothing when there is no other.
[[nodiscard]] std::optional<IndexRange> rangeWithoutRestarts(const void *indices, GLsizei count, GLenum type);
