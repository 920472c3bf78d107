#include "textures/texture_contents.h"

#include "common/per_back_end/host_gl.h"
#include "textures/pixel_store.h"
#include "textures/texture_targets.h"

#include <algorithm>

namespace {

constexpr GLenum stencilIndex = 0x1901; // GL_STENCIL_INDEX

GLenum imageTarget(GLenum target, GLint face) {
    return target == GL_TEXTURE_CUBE_MAP ? GL_TEXTURE_CUBE_MAP_POSITIVE_X + static_cast<GLenum>(face) : target;
}

GLint ask(GLenum target, GLint level, GLenum pname) {
    GLint value = 0;
    hostGl().getTexLevelParameteriv(target, level, pname, &value);
    return value;
}

// Of a format without one, by the bits that the host has given it.
GLenum sizedFormat(GLenum target, GLenum internal) {
    switch (internal) {
    case GL_RED:
        return GL_R8;
    case GL_RG:
        return GL_RG8;
    case GL_RGB:
        return ask(target, 0, GL_TEXTURE_GREEN_SIZE) == 6 ? GL_RGB565 : GL_RGB8;
    case GL_RGBA: {
        const GLint alpha = ask(target, 0, GL_TEXTURE_ALPHA_SIZE);
        return alpha == 4 ? GL_RGBA4 : alpha == 1 ? GL_RGB5_A1 : GL_RGBA8;
    }
    default:
        return internal;
    }
}

GLsizei sizeAt(GLsizei size, GLint level) {
    return std::max(size >> level, 1);
}

bool hasLevel(const TextureShape &shape, GLenum internal, GLint level) {
    for (GLint face = 0; face < shape.faces(); ++face) {
        const GLenum target = imageTarget(shape.target, face);
        if (ask(target, level, GL_TEXTURE_WIDTH) != sizeAt(shape.width, level) ||
            ask(target, level, GL_TEXTURE_HEIGHT) != sizeAt(shape.height, level) ||
            static_cast<GLenum>(ask(target, level, GL_TEXTURE_INTERNAL_FORMAT)) != internal) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<TextureShape> boundTextureShape(GLenum target) {
    const GLenum first = imageTarget(target, 0);
    TextureShape shape = {.target = target,
                          .width = ask(first, 0, GL_TEXTURE_WIDTH),
                          .height = ask(first, 0, GL_TEXTURE_HEIGHT),
                          .levels = 0,
                          .internal = GL_NONE};
    const auto internal = static_cast<GLenum>(ask(first, 0, GL_TEXTURE_INTERNAL_FORMAT));
    if (shape.width == 0 || !hasLevel(shape, internal, 0)) return std::nullopt;
    const GLint most = 32 - __builtin_clz(static_cast<unsigned>(std::max(shape.width, shape.height)));
    while (shape.levels < most && hasLevel(shape, internal, shape.levels))
        ++shape.levels;
    if (shape.levels < most && ask(first, shape.levels, GL_TEXTURE_WIDTH) != 0) return std::nullopt;
    if (!ask(first, 0, GL_TEXTURE_COMPRESSED)) shape.internal = sizedFormat(first, internal);
    return shape;
}

BoundTexture::BoundTexture(GLenum target, GLuint texture) : m_target(target) {
    hostGl().getIntegerv(bindingOf(target), &m_before);
    hostGl().bindTexture(target, texture);
}

BoundTexture::~BoundTexture() {
    hostGl().bindTexture(m_target, static_cast<GLuint>(m_before));
}

TextureContents::TextureContents(const TextureShape &shape) : m_shape(shape) {
    const GLenum first = imageTarget(shape.target, 0);
    size_t bytes = 4;
    const GLint depth = ask(first, 0, GL_TEXTURE_DEPTH_SIZE);
    const GLint stencil = ask(first, 0, GL_TEXTURE_STENCIL_SIZE);
    const auto kind = static_cast<GLenum>(ask(first, 0, GL_TEXTURE_RED_TYPE));
    if (depth && stencil) {
        m_format = GL_DEPTH_STENCIL;
        m_type = GL_FLOAT_32_UNSIGNED_INT_24_8_REV;
        bytes = 8;
    } else if (depth) {
        m_format = GL_DEPTH_COMPONENT;
        m_type = GL_FLOAT;
    } else if (stencil) {
        m_format = stencilIndex;
        bytes = 1;
    } else if (kind == GL_INT || kind == GL_UNSIGNED_INT) {
        m_format = GL_RGBA_INTEGER;
        m_type = kind;
        bytes = 16;
    } else if (kind != GL_UNSIGNED_NORMALIZED || ask(first, 0, GL_TEXTURE_RED_SIZE) > 8) {
        m_type = GL_FLOAT;
        bytes = 16;
    }
    const PackedPixels packed;
    for (GLint face = 0; face < shape.faces(); ++face) {
        for (GLint level = 0; level < shape.levels; ++level) {
            const GLsizei width = sizeAt(shape.width, level);
            const GLsizei height = sizeAt(shape.height, level);
            Image &image =
                m_images.emplace_back(Image{imageTarget(shape.target, face), face, level, width, height, {}});
            image.texels.resize(static_cast<size_t>(width) * static_cast<size_t>(height) * bytes);
            hostGl().getTexImage(image.target, level, m_format, m_type, image.texels.data());
        }
    }
}

void TextureContents::fill() const {
    const PackedPixels packed;
    for (const Image &image : m_images) {
        hostGl().texSubImage2D(image.target, image.level, 0, 0, image.width, image.height, m_format, m_type,
                               image.texels.data());
    }
}

void TextureContents::defineAllBut(GLint face, GLint level) const {
    const PackedPixels packed;
    for (const Image &image : m_images) {
        if (image.face == face && image.level == level) continue;
        hostGl().texImage2D(image.target, image.level, static_cast<GLint>(m_shape.internal), image.width, image.height,
                            0, m_format, m_type, image.texels.data());
    }
}
