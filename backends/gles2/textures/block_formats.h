// Compressed formats whose image copies desktop OpenGL does not define: ETC2 and ASTC. Pure.
#pragma once

#include "es_gl.h"

struct BlockFormat {
    GLenum format;
    GLenum relative; // the format with the same block layout
    GLsizei bytes;
    GLsizei width, height; // in texels
};

// Null for every other format.
[[nodiscard]] const BlockFormat *findBlockFormat(GLenum format);

// The bytes of a texel of a format that is copy-compatible with blocks; 0 for others.
[[nodiscard]] GLsizei blockTexelSize(GLenum format);
