// The complete contents of a two-dimensional texture or a cube map.
#pragma once

#include "es_gl.h"

#include <optional>
#include <vector>

// The shape of the texture that is bound to a texture target other than a cube map face.
struct TextureShape {
    GLenum target;
    GLsizei width;
    GLsizei height;
    GLint levels;
    GLenum internal; // sized, as texture storage requires; GL_NONE for a compressed one

    [[nodiscard]] GLint faces() const { return target == GL_TEXTURE_2D ? 1 : 6; }
};

// Nothing when images are missing or inconsistent.
[[nodiscard]] std::optional<TextureShape> boundTextureShape(GLenum target);

// While it lives, a texture is bound to the target on the host; then the previous one is bound again.
class BoundTexture {
public:
    BoundTexture(GLenum target, GLuint texture);
    ~BoundTexture();
    BoundTexture(const BoundTexture &) = delete;
    BoundTexture &operator=(const BoundTexture &) = delete;

private:
    const GLenum m_target;
    GLuint m_before = 0;
};

// The texels of all images of the bound texture. Throws std::bad_alloc.
class TextureContents {
public:
    explicit TextureContents(const TextureShape &shape);

    // Writes the texels to the bound storage of the same shape.
    void fill() const;
    // Specifies these images in the bound texture, except the one of this target, which may be a face, and level.
    void defineAllBut(GLenum target, GLint level) const;

private:
    struct Image {
        GLenum target;
        GLint level;
        GLsizei width, height;
        std::vector<GLubyte> texels;
    };
    const TextureShape m_shape;
    GLenum m_format = GL_RGBA;
    GLenum m_type = GL_UNSIGNED_BYTE;
    std::vector<Image> m_images;
};

// As a level index: no level gets a new image, and all are kept.
constexpr GLint allLevels = -1;

// Replaces the bound texture before an image of this target and level is specified. replace: binds another object to
// the shape's target, which then gets the other images. Throws std::bad_alloc.
template <typename Replace>
void replaceAllBut(const TextureShape &shape, GLenum target, GLint level, Replace replace) {
    const bool isOnlyImage = shape.levels == 1 && shape.faces() == 1 && level == 0;
    if (isOnlyImage) return replace();
    const TextureContents contents(shape);
    replace();
    contents.defineAllBut(target, level);
}

// Replaces the bound texture's images with an immutable storage, so that views can share it; the contents are kept.
// Throws std::bad_alloc.
void makeShareable(const TextureShape &shape);
