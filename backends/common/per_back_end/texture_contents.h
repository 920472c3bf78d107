// What a texture of two dimensions or a cube map holds, all of it.
#pragma once

#include "es_gl.h"

#include <optional>
#include <vector>

// Of the texture that is bound to a whole target.
struct TextureShape {
    GLenum target;
    GLsizei width;
    GLsizei height;
    GLint levels;
    GLenum internal; // with a size, as a storage takes it; GL_NONE for a compressed one

    [[nodiscard]] GLint faces() const { return target == GL_TEXTURE_2D ? 1 : 6; }
};

// Nothing where images are missing or do not fit together.
[[nodiscard]] std::optional<TextureShape> boundTextureShape(GLenum target);

// While it lives, a texture is bound to the target on the host; then what was bound before.
class BoundTexture {
public:
    BoundTexture(GLenum target, GLuint texture);
    ~BoundTexture();
    BoundTexture(const BoundTexture &) = delete;
    BoundTexture &operator=(const BoundTexture &) = delete;

private:
    const GLenum m_target;
    GLint m_before = 0;
};

// The texels of all images of the texture that is bound. Throws std::bad_alloc.
class TextureContents {
public:
    explicit TextureContents(const TextureShape &shape);

    // Into the storage of the same shape that is bound now.
    void fill() const;
    // Makes such images of the texture that is bound now, but not the one of this face, counted from 0, and level.
    void defineAllBut(GLint face, GLint level) const;

private:
    struct Image {
        GLenum target;
        GLint face, level;
        GLsizei width, height;
        std::vector<GLubyte> texels;
    };
    const TextureShape m_shape;
    GLenum m_format = GL_RGBA;
    GLenum m_type = GL_UNSIGNED_BYTE;
    std::vector<Image> m_images;
};

// Gives the texture that is bound a storage that cannot change, so that views can share it; what it holds stays. Throws
// std::bad_alloc.
void makeShareable(const TextureShape &shape);
