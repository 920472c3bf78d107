// Texture images and storages, in formats that a core context lacks.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "host_types.h"
#include "textures/texture_formats.h"
#include "textures/texture_limits.h"
#include "textures/texture_replacement.h"
#include "textures/texture_targets.h"

namespace {

// The error of ES for an image of these formats, or GL_NO_ERROR.
GLenum imageError(const EsContext &context, GLenum internal, GLenum format, GLenum type) {
    const char *const encoding = encodingExtension(internal);
    // The host checks the pixels that it compresses.
    if (encoding && context.announced.hasOneOf(encoding)) return GL_NO_ERROR;
    return context.major < 3 ? es2ImageError(internal, format, type) : es3ImageError(internal, format, type);
}

bool hasImage(GLenum target, GLint level) {
    GLint width = 0;
    hostGl().getTexLevelParameteriv(hostTarget(target), level, GL_TEXTURE_WIDTH, &width);
    return width != 0;
}

// The same for a part of an existing image.
GLenum partError(EsContext &context, GLenum target, GLint level, GLenum format, GLenum type) {
    auto internal = formatSwizzle(context, target).internal;
    const bool isHosts = internal == GL_NONE;
    if (isHosts) {
        if (!bindingOf(wholeTarget(target)) || level < 0) return GL_NO_ERROR;
        GLint told = GL_NONE;
        hostGl().getTexLevelParameteriv(hostTarget(target), level, GL_TEXTURE_INTERNAL_FORMAT, &told);
        internal = static_cast<GLenum>(told);
    }
    TakenPart &last = context.textures.lastTaken;
    if (last == TakenPart{internal, format, type}) return GL_NO_ERROR;
    const GLenum error = imageError(context, internal, format, type);
    if (error == GL_NO_ERROR) last = {internal, format, type};
    // A texture storage may have formats that glTexImage does not accept.
    if (error == GL_NO_ERROR || error == GL_INVALID_VALUE) return GL_NO_ERROR;
    // The host raises the error for an image that does not exist.
    return !isHosts || hasImage(target, level) ? error : GLenum(GL_NO_ERROR);
}

struct Image {
    GLenum target;
    GLint level;
    ImageSize size;
    GLenum internal;
};

// Calls the host with its own format and gives the texture the swizzle of the application's.
template <typename Define>
void define(const Image &image, GLenum format, GLenum type, Define call) {
    const auto &[target, level, size, internal] = image;
    EsContext *const context = EsContext::current();
    if (!context) return call(HostTextureFormat{internal, format, type, plainSwizzle});
    const GLenum error = imageError(*context, internal, format, type);
    if (error != GL_NO_ERROR) return context->raise(error);
    if (isTooLarge(*context, target, level, size)) return context->raise(GL_INVALID_VALUE);
    leaveImage(*context, target, level);
    const HostTextureFormat host = hostTextureFormat(internal, format, type);
    call(host);
    setFormatSwizzle(*context, target, internal, host);
}

template <typename Replace>
void replacePart(GLenum target, GLint level, GLenum format, GLenum type, Replace call) {
    EsContext *const context = EsContext::current();
    const GLenum error = context ? partError(*context, target, level, format, type) : GL_NO_ERROR;
    if (error != GL_NO_ERROR) return context->raise(error);
    call(hostPixelFormat(format, type), hostType(type));
}

template <typename Define>
void defineStorage(GLenum target, const ImageSize &size, GLenum internal, Define call) {
    EsContext *const context = EsContext::current();
    if (!context) return call(internal);
    if (isTooLarge(*context, target, 0, size)) return context->raise(GL_INVALID_VALUE);
    context->shared->textures.noteFormat(internal);
    leaveImage(*context, target, 0);
    const HostTextureFormat host = hostTextureFormat(internal);
    call(host.internal);
    setFormatSwizzle(*context, target, internal, host);
}

} // namespace

namespace overrides {

void GL_APIENTRY texImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                            GLint border, GLenum format, GLenum type, const void *pixels) {
    const Image image = {target, level, {width, height}, static_cast<GLenum>(internalformat)};
    define(image, format, type, [&](const HostTextureFormat &host) {
        hostGl().texImage2D(target, level, static_cast<GLint>(host.internal), width, height, border, host.format,
                            host.type, pixels);
    });
}

void GL_APIENTRY texImage3D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                            GLsizei depth, GLint border, GLenum format, GLenum type, const void *pixels) {
    const Image image = {target, level, {width, height, depth}, static_cast<GLenum>(internalformat)};
    define(image, format, type, [&](const HostTextureFormat &host) {
        hostGl().texImage3D(target, level, static_cast<GLint>(host.internal), width, height, depth, border, host.format,
                            host.type, pixels);
    });
}

void GL_APIENTRY texSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,
                               GLenum format, GLenum type, const void *pixels) {
    replacePart(target, level, format, type, [&](GLenum hostFormat, GLenum hostType) {
        hostGl().texSubImage2D(target, level, xoffset, yoffset, width, height, hostFormat, hostType, pixels);
    });
}

void GL_APIENTRY texSubImage3D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLint zoffset, GLsizei width,
                               GLsizei height, GLsizei depth, GLenum format, GLenum type, const void *pixels) {
    replacePart(target, level, format, type, [&](GLenum hostFormat, GLenum hostType) {
        hostGl().texSubImage3D(target, level, xoffset, yoffset, zoffset, width, height, depth, hostFormat, hostType,
                               pixels);
    });
}

void GL_APIENTRY texStorage2D(GLenum target, GLsizei levels, GLenum internalformat, GLsizei width, GLsizei height) {
    defineStorage(target, {width, height}, internalformat,
                  [&](GLenum internal) { hostGl().texStorage2D(target, levels, internal, width, height); });
}

void GL_APIENTRY texStorage3D(GLenum target, GLsizei levels, GLenum internalformat, GLsizei width, GLsizei height,
                              GLsizei depth) {
    defineStorage(target, {width, height, depth}, internalformat,
                  [&](GLenum internal) { hostGl().texStorage3D(target, levels, internal, width, height, depth); });
}

} // namespace overrides
