// Formats whose texels lie in compressed blocks, as far as copies of them are of ES alone: ETC2 and ASTC. Pure.
#pragma once

#include "es_gl.h"

struct BlockFormat {
    GLenum format;
    GLenum relative; // one that the same blocks can be copied to
    GLsizei bytes;
    GLsizei width, height; // in texels
};

// Null for every other format.
[[nodiscard]] const BlockFormat *findBlockFormat(GLenum format);

// The bytes of a texel of a format that blocks can be copied from and to; 0 for others.
[[nodiscard]] GLsizei blockTexelSize(GLenum format);
