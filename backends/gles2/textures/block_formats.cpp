#include "textures/block_formats.h"

#include <algorithm>
#include <iterator>

namespace {

#define BLOCK_FORMAT(...)
#define BLOCK_TEXEL(...)

#undef BLOCK_FORMAT
#define BLOCK_FORMAT(format, relative, bytes, width, height) {format, relative, bytes, width, height},
constexpr BlockFormat blockFormats[] = {
#include "textures/block_formats.def"
};
#undef BLOCK_FORMAT
#define BLOCK_FORMAT(...)

struct BlockTexel {
    GLenum format;
    GLsizei bytes;
};
#undef BLOCK_TEXEL
#define BLOCK_TEXEL(format, bytes) {format, bytes},
constexpr BlockTexel blockTexels[] = {
#include "textures/block_formats.def"
};
#undef BLOCK_TEXEL
#undef BLOCK_FORMAT

} // namespace

const BlockFormat *findBlockFormat(GLenum format) {
    const auto row = std::ranges::find(blockFormats, format, &BlockFormat::format);
    return row == std::end(blockFormats) ? nullptr : row;
}

GLsizei blockTexelSize(GLenum format) {
    const auto row = std::ranges::find(blockTexels, format, &BlockTexel::format);
    return row == std::end(blockTexels) ? 0 : row->bytes;
}
