// The swizzles of textures whose format the host lacks: what the format needs, under what the application set itself.
#pragma once

#include "common/shared_map.h"
#include "textures/texture_formats.h"

struct TextureSwizzle {
    Swizzle ofFormat = plainSwizzle;
    Swizzle ofApplication = plainSwizzle;
    GLenum internal = GL_NONE; // as the application gave it
};

// Those of a share group's textures, by the host's name; a context has one of its own for the textures of name 0, by
// target. Holds only textures that had a format once for which another stands on the host: the host's own swizzle is
// the application's for the others.
using TextureSwizzles = SharedMap<TextureSwizzle>;

class EsContext;

// The texture that is bound to the target has got an image of this format.
// internal: what the application calls it.
void setFormatSwizzle(EsContext &context, GLenum target, GLenum internal, const HostTextureFormat &format);

// Those of the texture that is bound to the target.
[[nodiscard]] TextureSwizzle formatSwizzle(EsContext &context, GLenum target);
