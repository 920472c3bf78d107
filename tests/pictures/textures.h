// Textures that the scenes draw with.
#pragma once

#include "pictures/gl.h"

// Uses nearest filtering.
inline GLuint bindNewTexture(GLenum target = GL_TEXTURE_2D) {
    GLuint name = 0;
    gl.genTextures(1, &name);
    gl.bindTexture(target, name);
    gl.texParameterf(target, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl.texParameterf(target, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    return name;
}

// 16 x 16 texels of many colours and alphas, in a format of bytes.
inline void loadPattern(GLenum format) {
    GLubyte texels[16 * 16 * 4];
    for (int index = 0; index < 16 * 16 * 4; ++index)
        texels[index] = static_cast<GLubyte>(index * 83 + index / 64 * 17);
    gl.texImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), 16, 16, 0, format, GL_UNSIGNED_BYTE, texels);
}

inline void bindPattern(GLenum format) {
    bindNewTexture();
    loadPattern(format);
}
