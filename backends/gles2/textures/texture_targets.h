// Texture targets.
#pragma once

#include "es_gl.h"

constexpr GLenum textureExternal = 0x8D65; // GL_TEXTURE_EXTERNAL_OES

// An external texture is a two-dimensional one on the host.
[[nodiscard]] constexpr GLenum hostTarget(GLenum target) {
    return target == textureExternal ? GLenum(GL_TEXTURE_2D) : target;
}

// The target of a cube map face is GL_TEXTURE_CUBE_MAP; any other is unchanged.
[[nodiscard]] constexpr GLenum wholeTarget(GLenum target) {
    const bool isFace = target >= GL_TEXTURE_CUBE_MAP_POSITIVE_X && target <= GL_TEXTURE_CUBE_MAP_NEGATIVE_Z;
    return isFace ? GLenum(GL_TEXTURE_CUBE_MAP) : hostTarget(target);
}

// The query for the texture that is bound to a target; 0 for an invalid target.
[[nodiscard]] constexpr GLenum bindingOf(GLenum target) {
    switch (target) {
    case GL_TEXTURE_2D:
        return GL_TEXTURE_BINDING_2D;
    case GL_TEXTURE_3D:
        return GL_TEXTURE_BINDING_3D;
    case GL_TEXTURE_CUBE_MAP:
        return GL_TEXTURE_BINDING_CUBE_MAP;
    case GL_TEXTURE_2D_ARRAY:
        return GL_TEXTURE_BINDING_2D_ARRAY;
    case GL_TEXTURE_CUBE_MAP_ARRAY:
        return GL_TEXTURE_BINDING_CUBE_MAP_ARRAY;
    case GL_TEXTURE_2D_MULTISAMPLE:
        return GL_TEXTURE_BINDING_2D_MULTISAMPLE;
    case GL_TEXTURE_2D_MULTISAMPLE_ARRAY:
        return GL_TEXTURE_BINDING_2D_MULTISAMPLE_ARRAY;
    case GL_TEXTURE_BUFFER:
        return GL_TEXTURE_BINDING_BUFFER;
    default:
        return 0;
    }
}
