// Compressed images. If the host does not support ETC2, of which ETC1 is a subset, this library decodes ETC1.
#include "common/etc1.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "common/per_back_end/pixel_store.h"
#include "context/es_context.h"
#include "textures/texture_formats.h"
#include "textures/texture_limits.h"
#include "textures/texture_replacement.h"

#include <new>

namespace {

GLint hostInteger(GLenum name) {
    GLint value = 0;
    hostGl().getIntegerv(name, &value);
    return value;
}

struct Image {
    GLenum target;
    GLint level;
    GLsizei width, height;
};

// The host checks target, level and border when the texels are specified.
GLenum setDecoded(const Image &image, GLint border, GLsizei imageSize, const void *data) {
    const GLint limit = hostInteger(GL_MAX_TEXTURE_SIZE);
    if (image.width < 0 || image.height < 0 || image.width > limit || image.height > limit) return GL_INVALID_VALUE;
    const auto width = static_cast<size_t>(image.width);
    const auto height = static_cast<size_t>(image.height);
    if (imageSize < 0 || static_cast<size_t>(imageSize) != etc1Size(width, height)) return GL_INVALID_VALUE;
    // ES 2 has no such buffer, and an offset is no address.
    if (hostInteger(GL_PIXEL_UNPACK_BUFFER_BINDING) != 0) return GL_INVALID_OPERATION;
    try {
        std::vector<uint8_t> texels;
        if (data) texels = decodeEtc1(static_cast<const uint8_t *>(data), width, height);
        const PackedPixels packed;
        hostGl().texImage2D(image.target, image.level, GL_RGB8, image.width, image.height, border, GL_RGB,
                            GL_UNSIGNED_BYTE, data ? texels.data() : nullptr);
        return GL_NO_ERROR;
    } catch (const std::bad_alloc &) {
        return GL_OUT_OF_MEMORY;
    }
}

} // namespace

namespace overrides {

void GL_APIENTRY compressedTexImage2D(GLenum target, GLint level, GLenum internalformat, GLsizei width, GLsizei height,
                                      GLint border, GLsizei imageSize, const void *data) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context) return gl.compressedTexImage2D(target, level, internalformat, width, height, border, imageSize, data);
    const bool isGood = border == 0 && !isTooLarge(*context, target, level, {width, height});
    if (!isGood) return context->raise(GL_INVALID_VALUE);
    leaveImage(*context, target, level);
    context->shared->textures.noteFormat(internalformat);
    const HostTextureFormat host = hostTextureFormat(internalformat);
    if (internalformat == GL_ETC1_RGB8_OES && !context->host.carries(43, "GL_ARB_ES3_compatibility")) {
        const GLenum error = setDecoded({target, level, width, height}, border, imageSize, data);
        if (error != GL_NO_ERROR) return context->raise(error);
    } else {
        gl.compressedTexImage2D(target, level, host.internal, width, height, border, imageSize, data);
    }
    setFormatSwizzle(*context, target, internalformat, host);
}

void GL_APIENTRY compressedTexImage3D(GLenum target, GLint level, GLenum internalformat, GLsizei width, GLsizei height,
                                      GLsizei depth, GLint border, GLsizei imageSize, const void *data) {
    EsContext *const context = EsContext::current();
    if (context) {
        const bool isGood = border == 0 && !isTooLarge(*context, target, level, {width, height, depth});
        if (!isGood) return context->raise(GL_INVALID_VALUE);
        context->shared->textures.noteFormat(internalformat);
    }
    hostGl().compressedTexImage3D(target, level, internalformat, width, height, depth, border, imageSize, data);
}

// Parts of an ETC1 image can be replaced if the host stores it compressed.
void GL_APIENTRY compressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width,
                                         GLsizei height, GLenum format, GLsizei imageSize, const void *data) {
    EsContext *const context = EsContext::current();
    if (context && format == GL_ETC1_RGB8_OES) {
        const bool isCarried = context->announced.hasOneOf("GL_EXT_compressed_ETC1_RGB8_sub_texture");
        if (!isCarried) return context->raise(GL_INVALID_OPERATION);
        format = hostTextureFormat(format).internal;
    }
    hostGl().compressedTexSubImage2D(target, level, xoffset, yoffset, width, height, format, imageSize, data);
}

} // namespace overrides
