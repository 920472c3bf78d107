// The swizzles of textures whose format the host lacks: the format's own, combined with the application's.
#pragma once

#include "common/shared_map.h"
#include "textures/texture_formats.h"

struct TextureSwizzle {
    Swizzle ofFormat = plainSwizzle;
    Swizzle ofApplication = plainSwizzle;
    GLenum internal = GL_NONE; // as the application specified it
};

// The swizzles of a share group's textures, by the host's name; a context has its own for the textures of name 0, by
// target. Holds only textures that had a replaced format at some time: for the others the host's own swizzle is the
// application's.
using TextureSwizzles = SharedMap<TextureSwizzle>;

class EsContext;

// Called after an image of this format was specified for the texture that is bound to the target.
// internal: the application's format.
void setFormatSwizzle(EsContext &context, GLenum target, GLenum internal, const HostTextureFormat &format);

// The swizzles of the texture that is bound to the target.
[[nodiscard]] TextureSwizzle formatSwizzle(EsContext &context, GLenum target);
