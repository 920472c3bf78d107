// The texture formats of ES on a host that has others. Pure: no context is asked.
#pragma once

#include <GLES3/gl32.h>

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

// An unsized format that only ES has; format and internal format must be the same then.
[[nodiscard]] bool isOnlyOfEs(GLenum internal);
