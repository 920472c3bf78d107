#include "vertices/index_range.h"

#include <algorithm>
#include <limits>

namespace {

// Branchless, so that the compiler can vectorise it.
template <bool hasRestarts, typename Index>
IndexRange find(const Index *list, GLsizei count) {
    constexpr Index restart = std::numeric_limits<Index>::max();
    Index lowest = restart;
    Index highest = 0;
    for (GLsizei place = 0; place < count; ++place) {
        lowest = std::min(lowest, list[place]);
        highest = std::max(highest, hasRestarts && list[place] == restart ? Index(0) : list[place]);
    }
    return {lowest, highest};
}

template <bool hasRestarts>
IndexRange findIn(const void *indices, GLsizei count, GLenum type) {
    switch (type) {
    case GL_UNSIGNED_BYTE:
        return find<hasRestarts>(static_cast<const GLubyte *>(indices), count);
    case GL_UNSIGNED_SHORT:
        return find<hasRestarts>(static_cast<const GLushort *>(indices), count);
    default:
        return find<hasRestarts>(static_cast<const GLuint *>(indices), count);
    }
}

} // namespace

IndexRange rangeOf(const void *indices, GLsizei count, GLenum type) {
    return findIn<false>(indices, count, type);
}

std::optional<IndexRange> rangeWithoutRestarts(const void *indices, GLsizei count, GLenum type) {
    const IndexRange range = findIn<true>(indices, count, type);
    return range.lowest == greatestIndex(type) ? std::nullopt : std::optional(range);
}
