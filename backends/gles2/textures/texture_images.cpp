// Images and storages of textures, in formats that a core context lacks.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "host_types.h"
#include "textures/texture_formats.h"

namespace {

// Calls the host with its own format and gives the texture the swizzle of the application's.
template <typename Define>
void define(GLenum target, GLenum internal, GLenum format, GLenum type, Define call) {
    EsContext *const context = EsContext::current();
    if (!context) return call(HostTextureFormat{internal, format, type, plainSwizzle});
    const GLenum error = context->major < 3 ? es2ImageError(internal, format, type) : es3ImageError(internal, format);
    if (error != GL_NO_ERROR) return context->raise(error);
    const HostTextureFormat host = hostTextureFormat(internal, format, type);
    call(host);
    setFormatSwizzle(*context, target, internal, host.swizzle);
}

template <typename Define>
void defineStorage(GLenum target, GLenum internal, Define call) {
    EsContext *const context = EsContext::current();
    if (!context) return call(internal);
    const HostTextureFormat host = hostTextureFormat(internal);
    call(host.internal);
    setFormatSwizzle(*context, target, internal, host.swizzle);
}

} // namespace

namespace overrides {

void GL_APIENTRY texImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                            GLint border, GLenum format, GLenum type, const void *pixels) {
    define(target, static_cast<GLenum>(internalformat), format, type, [&](const HostTextureFormat &host) {
        hostGl().texImage2D(target, level, static_cast<GLint>(host.internal), width, height, border, host.format,
                            host.type, pixels);
    });
}

void GL_APIENTRY texImage3D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                            GLsizei depth, GLint border, GLenum format, GLenum type, const void *pixels) {
    define(target, static_cast<GLenum>(internalformat), format, type, [&](const HostTextureFormat &host) {
        hostGl().texImage3D(target, level, static_cast<GLint>(host.internal), width, height, depth, border, host.format,
                            host.type, pixels);
    });
}

void GL_APIENTRY texSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,
                               GLenum format, GLenum type, const void *pixels) {
    hostGl().texSubImage2D(target, level, xoffset, yoffset, width, height, hostPixelFormat(format), hostType(type),
                           pixels);
}

void GL_APIENTRY texSubImage3D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLint zoffset, GLsizei width,
                               GLsizei height, GLsizei depth, GLenum format, GLenum type, const void *pixels) {
    hostGl().texSubImage3D(target, level, xoffset, yoffset, zoffset, width, height, depth, hostPixelFormat(format),
                           hostType(type), pixels);
}

void GL_APIENTRY texStorage2D(GLenum target, GLsizei levels, GLenum internalformat, GLsizei width, GLsizei height) {
    defineStorage(target, internalformat,
                  [&](GLenum internal) { hostGl().texStorage2D(target, levels, internal, width, height); });
}

void GL_APIENTRY texStorage3D(GLenum target, GLsizei levels, GLenum internalformat, GLsizei width, GLsizei height,
                              GLsizei depth) {
    defineStorage(target, internalformat,
                  [&](GLenum internal) { hostGl().texStorage3D(target, levels, internal, width, height, depth); });
}

} // namespace overrides
