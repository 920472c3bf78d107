#include "common/per_back_end/texture_contents.h"

#include "common/per_back_end/bound_textures.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/pixel_store.h"

#include <algorithm>
#include <iterator>

namespace {

namespace enums {

// Some ES headers lack these names.
constexpr GLenum stencilIndex = 0x1901, depthComponent = 0x1902, depthStencil = 0x84F9, rgbaInteger = 0x8D99;
constexpr GLenum signedInteger = 0x1404, unsignedInteger = 0x1405, unsignedNormalized = 0x8C17,
                 floatsAndStencils = 0x8DAD;
constexpr GLenum cubeMap = 0x8513, bindingCubeMap = 0x8514, firstFace = 0x8515;
constexpr GLenum width = 0x1000, height = 0x1001, internalFormat = 0x1003, isCompressed = 0x86A1;
constexpr GLenum redSize = 0x805C, greenSize = 0x805D, alphaSize = 0x805F, depthSize = 0x884A, stencilSize = 0x88F1,
                 redType = 0x8C10;

struct Sized {
    GLenum unsizedFormat, sizedFormat;
};
// The formats that have the same size on every host.
constexpr Sized sizes[] = {
    {0x1903, 0x8229},       // red
    {0x8227, 0x822B},       // red and green
    {GL_ALPHA, 0x803C},     //
    {GL_LUMINANCE, 0x8040}, //
    {GL_LUMINANCE_ALPHA, 0x8045},
};
constexpr GLenum rgb8 = 0x8051, rgb565 = 0x8D62, rgba8 = 0x8058, rgba4 = 0x8056, rgb5A1 = 0x8057;

} // namespace enums

GLenum imageTarget(GLenum target, GLint face) {
    return target == enums::cubeMap ? enums::firstFace + static_cast<GLenum>(face) : target;
}

GLint ask(GLenum target, GLint level, GLenum pname) {
    GLint value = 0;
    hostGl().getTexLevelParameteriv(target, level, pname, &value);
    return value;
}

// The sized format for an unsized one, by the bits that the host allocated.
GLenum sizedFormat(GLenum target, GLenum internal) {
    if (internal == GL_RGB) return ask(target, 0, enums::greenSize) == 6 ? enums::rgb565 : enums::rgb8;
    if (internal == GL_RGBA) {
        const GLint alpha = ask(target, 0, enums::alphaSize);
        return alpha == 4 ? enums::rgba4 : alpha == 1 ? enums::rgb5A1 : enums::rgba8;
    }
    const auto row = std::ranges::find(enums::sizes, internal, &enums::Sized::unsizedFormat);
    return row == std::end(enums::sizes) ? internal : row->sizedFormat;
}

GLsizei sizeAt(GLsizei size, GLint level) {
    return std::max(size >> level, 1);
}

bool hasLevel(const TextureShape &shape, GLenum internal, GLint level) {
    for (GLint face = 0; face < shape.faces(); ++face) {
        const GLenum target = imageTarget(shape.target, face);
        if (ask(target, level, enums::width) != sizeAt(shape.width, level) ||
            ask(target, level, enums::height) != sizeAt(shape.height, level) ||
            static_cast<GLenum>(ask(target, level, enums::internalFormat)) != internal) {
            return false;
        }
    }
    return true;
}

} // namespace

std::optional<TextureShape> boundTextureShape(GLenum target) {
    const GLenum first = imageTarget(target, 0);
    TextureShape shape = {.target = target,
                          .width = ask(first, 0, enums::width),
                          .height = ask(first, 0, enums::height),
                          .levels = 0,
                          .internal = 0};
    const auto internal = static_cast<GLenum>(ask(first, 0, enums::internalFormat));
    if (shape.width == 0 || !hasLevel(shape, internal, 0)) return std::nullopt;
    const GLint most = 32 - __builtin_clz(static_cast<unsigned>(std::max(shape.width, shape.height)));
    while (shape.levels < most && hasLevel(shape, internal, shape.levels))
        ++shape.levels;
    if (shape.levels < most && ask(first, shape.levels, enums::width) != 0) return std::nullopt;
    if (!ask(first, 0, enums::isCompressed)) shape.internal = sizedFormat(first, internal);
    return shape;
}

BoundTexture::BoundTexture(GLenum target, GLuint texture) : m_target(target) {
    m_before = textureBoundTo(target == enums::cubeMap ? enums::bindingCubeMap : GLenum(GL_TEXTURE_BINDING_2D));
    hostGl().bindTexture(target, texture);
}

BoundTexture::~BoundTexture() {
    hostGl().bindTexture(m_target, m_before);
}

TextureContents::TextureContents(const TextureShape &shape) : m_shape(shape) {
    const GLenum first = imageTarget(shape.target, 0);
    size_t bytes = 4;
    const GLint depth = ask(first, 0, enums::depthSize);
    const GLint stencil = ask(first, 0, enums::stencilSize);
    const auto kind = static_cast<GLenum>(ask(first, 0, enums::redType));
    if (depth && stencil) {
        m_format = enums::depthStencil;
        m_type = enums::floatsAndStencils;
        bytes = 8;
    } else if (depth) {
        m_format = enums::depthComponent;
        m_type = GL_FLOAT;
    } else if (stencil) {
        m_format = enums::stencilIndex;
        bytes = 1;
    } else if (kind == enums::signedInteger || kind == enums::unsignedInteger) {
        m_format = enums::rgbaInteger;
        m_type = kind;
        bytes = 16;
    } else if (kind != enums::unsignedNormalized || ask(first, 0, enums::redSize) > 8) {
        m_type = GL_FLOAT;
        bytes = 16;
    }
    const PackedPixels packed;
    for (GLint face = 0; face < shape.faces(); ++face) {
        for (GLint level = 0; level < shape.levels; ++level) {
            const GLsizei width = sizeAt(shape.width, level);
            const GLsizei height = sizeAt(shape.height, level);
            Image &image = m_images.emplace_back(Image{imageTarget(shape.target, face), level, width, height, {}});
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

void TextureContents::defineAllBut(GLenum target, GLint level) const {
    const PackedPixels packed;
    for (const Image &image : m_images) {
        if (image.target == target && image.level == level) continue;
        hostGl().texImage2D(image.target, image.level, static_cast<GLint>(m_shape.internal), image.width, image.height,
                            0, m_format, m_type, image.texels.data());
    }
}

void makeShareable(const TextureShape &shape) {
    const TextureContents contents(shape);
    hostGl().texStorage2D(shape.target, shape.levels, shape.internal, shape.width, shape.height);
    contents.fill();
}
