// The texture formats of ES on a host that has others. Pure: no context is asked.
#pragma once

#include "es_gl.h"

#include <array>

// What a shader reads as red, green, blue and alpha, in the names of GL_TEXTURE_SWIZZLE_*.
using Swizzle = std::array<GLint, 4>;

constexpr Swizzle plainSwizzle = {GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA};

// Reads the outer swizzle from what the inner one gives.
[[nodiscard]] Swizzle composed(const Swizzle &outer, const Swizzle &inner);

struct HostTextureFormat {
    GLenum internal;
    GLenum format;
    GLenum type;
    Swizzle swizzle;
};

// For an image of the application's. What the host has too, or what nobody has, comes back as it is.
[[nodiscard]] HostTextureFormat hostTextureFormat(GLenum internal, GLenum format, GLenum type);

// For a storage or a copy, where no pixels come with it.
[[nodiscard]] HostTextureFormat hostTextureFormat(GLenum internal);

// The host's name for the format of the application's pixels.
[[nodiscard]] GLenum hostPixelFormat(GLenum format, GLenum type);

// The extension with which the host encodes plain pixels in this compressed format, or null.
[[nodiscard]] const char *encodingExtension(GLenum internal);

// The error of ES for the formats of an image, or GL_NO_ERROR: the host takes far more of them. In ES 2 the two formats
// are one of a few and the same.
[[nodiscard]] GLenum es2ImageError(GLenum internal, GLenum format, GLenum type);
[[nodiscard]] GLenum es3ImageError(GLenum internal, GLenum format, GLenum type);
