// Texture images. ES 1 accepts fewer formats than the host, and requires that internal format and format are equal.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>
#include <iterator>

namespace {

struct PixelFormat {
    GLenum format, type;
};

constexpr PixelFormat pixelFormats[] = {
#define PIXEL_FORMAT(format, type) {format, type},
#include "textures/pixel_formats.def"
#undef PIXEL_FORMAT
};

struct InternalFormat {
    GLenum name, base, host;
};

constexpr InternalFormat internalFormats[] = {
#define INTERNAL_FORMAT(name, base, host) {name, base, host},
#include "textures/internal_formats.def"
#undef INTERNAL_FORMAT
};

bool isImageTarget(GLenum target) {
    return target == GL_TEXTURE_2D ||
           (target >= GL_TEXTURE_CUBE_MAP_POSITIVE_X_OES && target <= GL_TEXTURE_CUBE_MAP_NEGATIVE_Z_OES);
}

GLenum formatError(GLenum format, GLenum type) {
    const auto is = [&](const PixelFormat &row) { return row.format == format && row.type == type; };
    if (std::ranges::any_of(pixelFormats, is)) return GL_NO_ERROR;
    // A valid format and type of renderbuffers, which no internal format of textures accepts.
    if (format == GL_DEPTH_STENCIL_OES && type == GL_UNSIGNED_INT_24_8_OES) return GL_NO_ERROR;
    const bool isFormat = format == GL_DEPTH_STENCIL_OES ||
                          std::ranges::find(pixelFormats, format, &PixelFormat::format) != std::end(pixelFormats);
    const bool isType = type == GL_UNSIGNED_INT_24_8_OES ||
                        std::ranges::find(pixelFormats, type, &PixelFormat::type) != std::end(pixelFormats);
    return isFormat && isType ? GL_INVALID_OPERATION : GL_INVALID_ENUM;
}

const InternalFormat *findInternalFormat(GLenum name) {
    const auto row = std::ranges::find(internalFormats, name, &InternalFormat::name);
    return row == std::end(internalFormats) ? nullptr : row;
}

GLenum imageError(GLenum target, const InternalFormat *internal, GLint border, GLenum format, GLenum type) {
    if (!isImageTarget(target)) return GL_INVALID_ENUM;
    if (const GLenum error = formatError(format, type)) return error;
    if (!internal || border != 0) return GL_INVALID_VALUE;
    return internal->base == format ? GL_NO_ERROR : GL_INVALID_OPERATION;
}

} // namespace

namespace overrides {

void GL_APIENTRY texImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                            GLint border, GLenum format, GLenum type, const void *pixels) {
    const InternalFormat *const internal = findInternalFormat(static_cast<GLenum>(internalformat));
    if (const GLenum error = imageError(target, internal, border, format, type)) return raise(error);
    leaveImage(target, level);
    hostGl().texImage2D(target, level, static_cast<GLint>(internal->host), width, height, 0, format, type, pixels);
}

void GL_APIENTRY texSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,
                               GLenum format, GLenum type, const void *pixels) {
    if (!isImageTarget(target)) return raise(GL_INVALID_ENUM);
    if (const GLenum error = formatError(format, type)) return raise(error);
    hostGl().texSubImage2D(target, level, xoffset, yoffset, width, height, format, type, pixels);
}

void GL_APIENTRY copyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x, GLint y, GLsizei width,
                                GLsizei height, GLint border) {
    const InternalFormat *const internal = findInternalFormat(internalformat);
    if (!isImageTarget(target) || !internal) return raise(GL_INVALID_ENUM);
    if (border != 0) return raise(GL_INVALID_VALUE);
    leaveImage(target, level);
    hostGl().copyTexImage2D(target, level, internal->host, x, y, width, height, 0);
}

// Accepts sized formats only.
void GL_APIENTRY texStorage2DEXT(GLenum target, GLsizei levels, GLenum internalformat, GLsizei width, GLsizei height) {
    const InternalFormat *const internal = findInternalFormat(internalformat);
    const bool isSized = internal && internal->name != internal->base;
    if ((target != GL_TEXTURE_2D && target != GL_TEXTURE_CUBE_MAP_OES) || !isSized) return raise(GL_INVALID_ENUM);
    leaveImage(target, 0);
    hostGl().texStorage2D(target, levels, internal->host, width, height);
}

void GL_APIENTRY pixelStorei(GLenum pname, GLint param) {
    if (pname != GL_PACK_ALIGNMENT && pname != GL_UNPACK_ALIGNMENT) return raise(GL_INVALID_ENUM);
    hostGl().pixelStorei(pname, param);
}

} // namespace overrides
