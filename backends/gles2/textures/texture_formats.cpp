#include "textures/texture_formats.h"

#include "host_types.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr Swizzle plain = plainSwizzle;
constexpr Swizzle alpha = {GL_ZERO, GL_ZERO, GL_ZERO, GL_RED};
constexpr Swizzle luminance = {GL_RED, GL_RED, GL_RED, GL_ONE};
constexpr Swizzle luminanceAlpha = {GL_RED, GL_RED, GL_RED, GL_GREEN};

struct Unsized {
    GLenum format, type, hostInternal, hostFormat;
    const Swizzle &swizzle;
};
struct Sized {
    GLenum internal, hostInternal;
    const Swizzle &swizzle;
};
struct Client {
    GLenum format, hostFormat;
};
struct Encoded {
    GLenum internal;
    const char *extension;
};

#define UNSIZED(...)
#define SIZED(...)
#define CLIENT(...)
#define ENCODED(...)

#undef UNSIZED
#define UNSIZED(format, type, hostInternal, hostFormat, swizzle) {format, type, hostInternal, hostFormat, swizzle},
constexpr Unsized unsizedFormats[] = {
#include "textures/texture_formats.def"
};
#undef UNSIZED
#define UNSIZED(...)

#undef SIZED
#define SIZED(internal, hostInternal, swizzle) {internal, hostInternal, swizzle},
constexpr Sized sizedFormats[] = {
#include "textures/texture_formats.def"
};
#undef SIZED
#define SIZED(...)

#undef CLIENT
#define CLIENT(format, hostFormat) {format, hostFormat},
constexpr Client clientFormats[] = {
#include "textures/texture_formats.def"
};
#undef CLIENT
#define CLIENT(...)

#undef ENCODED
#define ENCODED(internal, extension) {internal, extension},
constexpr Encoded encodedFormats[] = {
#include "textures/texture_formats.def"
};
#undef ENCODED
#undef CLIENT
#undef SIZED
#undef UNSIZED

struct SizedImage {
    GLenum internal, format, type;
};
constexpr SizedImage sizedImages[] = {
#define IMAGE(internal, format, type) {internal, format, type},
#include "textures/image_formats.def"
#undef IMAGE
};

template <typename Row, size_t size>
bool knows(const Row (&table)[size], GLenum Row::*column, GLenum name) {
    return std::ranges::find(table, name, column) != std::end(table);
}

} // namespace

Swizzle composed(const Swizzle &outer, const Swizzle &inner) {
    Swizzle result = outer;
    for (GLint &channel : result) {
        if (channel >= GL_RED && channel <= GL_ALPHA) channel = inner[static_cast<size_t>(channel - GL_RED)];
    }
    return result;
}

HostTextureFormat hostTextureFormat(GLenum internal, GLenum format, GLenum type) {
    type = hostType(type);
    for (const Unsized &row : unsizedFormats) {
        if (row.format == internal && row.format == format && row.type == type) {
            return {row.hostInternal, row.hostFormat, type, row.swizzle};
        }
    }
    const HostTextureFormat sized = hostTextureFormat(internal);
    return {sized.internal, hostPixelFormat(format, type), type, sized.swizzle};
}

GLenum hostPixelFormat(GLenum format, GLenum type) {
    if (format == GL_RGB && type == GL_UNSIGNED_INT_2_10_10_10_REV) return GL_RGBA;
    const auto row = std::ranges::find(clientFormats, format, &Client::format);
    return row == std::end(clientFormats) ? format : row->hostFormat;
}

HostTextureFormat hostTextureFormat(GLenum internal) {
    const auto row = std::ranges::find(sizedFormats, internal, &Sized::internal);
    if (row == std::end(sizedFormats)) return {internal, internal, GL_UNSIGNED_BYTE, plain};
    return {row->hostInternal, internal, GL_UNSIGNED_BYTE, row->swizzle};
}

const char *encodingExtension(GLenum internal) {
    const auto row = std::ranges::find(encodedFormats, internal, &Encoded::internal);
    return row == std::end(encodedFormats) ? nullptr : row->extension;
}

GLenum es2ImageError(GLenum internal, GLenum format, GLenum type) {
    type = hostType(type);
    if (!knows(unsizedFormats, &Unsized::format, format) || !knows(unsizedFormats, &Unsized::type, type)) {
        return GL_INVALID_ENUM;
    }
    if (!knows(unsizedFormats, &Unsized::format, internal)) return GL_INVALID_VALUE;
    const auto isRow = [&](const Unsized &row) { return row.format == format && row.type == type; };
    const bool isTaken = internal == format && std::ranges::any_of(unsizedFormats, isRow);
    return isTaken ? GL_NO_ERROR : GL_INVALID_OPERATION;
}

GLenum es3ImageError(GLenum internal, GLenum format, GLenum type) {
    type = hostType(type);
    const auto isRow = [&](const SizedImage &row) {
        return row.internal == internal && row.format == format && row.type == type;
    };
    if (std::ranges::any_of(sizedImages, isRow)) return GL_NO_ERROR;
    const GLenum unsizedError = es2ImageError(internal, format, type);
    if (unsizedError == GL_NO_ERROR) return GL_NO_ERROR;
    const bool isKnown =
        (knows(unsizedFormats, &Unsized::format, format) || knows(sizedImages, &SizedImage::format, format)) &&
        (knows(unsizedFormats, &Unsized::type, type) || knows(sizedImages, &SizedImage::type, type));
    if (!isKnown) return GL_INVALID_ENUM;
    const bool isInternal =
        knows(unsizedFormats, &Unsized::format, internal) || knows(sizedImages, &SizedImage::internal, internal);
    return isInternal ? GL_INVALID_OPERATION : GL_INVALID_VALUE;
}
