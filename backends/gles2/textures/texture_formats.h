// Maps the texture formats of ES to those of the host. Pure: uses no context.
#pragma once

#include "es_gl.h"

#include <array>

// The values that a shader reads as red, green, blue and alpha, in the names of GL_TEXTURE_SWIZZLE_*.
using Swizzle = std::array<GLint, 4>;

constexpr Swizzle plainSwizzle = {GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA};

// Applies the outer swizzle to the result of the inner one.
[[nodiscard]] Swizzle composed(const Swizzle &outer, const Swizzle &inner);

struct HostTextureFormat {
    GLenum internal;
    GLenum format;
    GLenum type;
    Swizzle swizzle;
};

// For an image of the application's. Formats that the host has too, or that are invalid, are returned unchanged.
[[nodiscard]] HostTextureFormat hostTextureFormat(GLenum internal, GLenum format, GLenum type);

// For a storage or a copy, without pixels.
[[nodiscard]] HostTextureFormat hostTextureFormat(GLenum internal);

// The host's name for the format of the application's pixels.
[[nodiscard]] GLenum hostPixelFormat(GLenum format, GLenum type);

// The extension with which the host compresses plain pixels to this format, or null.
[[nodiscard]] const char *encodingExtension(GLenum internal);

// The ES error for the formats of an image, or GL_NO_ERROR: the host accepts far more of them. In ES 2 the two formats
// must be equal and one of a few.
[[nodiscard]] GLenum es2ImageError(GLenum internal, GLenum format, GLenum type);
[[nodiscard]] GLenum es3ImageError(GLenum internal, GLenum format, GLenum type);
