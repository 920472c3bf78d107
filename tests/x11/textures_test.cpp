#include "x11/back_end_fixture.h"

namespace {

class BackEndTextures : public BackEnd {
protected:
    void startTextured(int major, int minor) {
        startWith(major, minor, texturedVertex, texturedFragment);
        drawToImage(GL_RGBA8); // the surface's alpha may have few bits
        bindNew();
    }
    GLuint bindNew() {
        GLuint texture = 0;
        ES(glGenTextures)(1, &texture);
        bind(texture);
        return texture;
    }
    void bind(GLuint texture) {
        ES(glBindTexture)(GL_TEXTURE_2D, texture);
        ES(glTexParameteri)(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    }
    void image(GLint format, GLenum type, const void *pixels) {
        ES(glTexImage2D)(GL_TEXTURE_2D, 0, format, 1, 1, 0, static_cast<GLenum>(format), type, pixels);
    }
    void image(const Pixel &pixel) { image(GL_RGBA, GL_UNSIGNED_BYTE, pixel.data()); }
    GLint level(GLenum name) {
        GLint value = -2;
        ES(glGetTexLevelParameteriv)(GL_TEXTURE_2D, 0, name, &value);
        return value;
    }
    // The texture's colour in a shader.
    Pixel sampled() {
        draw(GL_TRIANGLES, {-1, -1, 3, -1, -1, 3});
        return pixel(5, 5);
    }
};

} // namespace

TEST_F(BackEndTextures, FormatsThatOnlyEsHasAreWhatEsSays) {
    startTextured(3, 1);
    const GLubyte bytes[] = {51, 102, 153, 204};
    const GLfloat floats[] = {0.2F, 0.4F, 0.6F, 0.8F};
    const GLushort halves[] = {0x3266, 0x3666, 0x38CD, 0x3A66};
    const GLushort shortDepth = 0x3333;
    const GLuint depth = 0x66666666;
    const GLuint tenBits = 0x3FF003FF;
    const auto check = [&](GLint format, GLenum type, const void *pixels, const Pixel &expected,
                           const std::array<GLint, 3> &told) {
        SCOPED_TRACE(testing::Message() << std::hex << format << ' ' << type);
        image(format, type, pixels);
        EXPECT_EQ(sampled(), expected);
        EXPECT_EQ(level(GL_TEXTURE_INTERNAL_FORMAT), told[0]);
        EXPECT_EQ(level(GL_TEXTURE_RED_SIZE), told[1]);
        EXPECT_EQ(level(GL_TEXTURE_ALPHA_SIZE), told[2]);
    };
#define IMAGE(format, type, pixels, r, g, b, a, ...) check(format, type, pixels, {r, g, b, a}, {__VA_ARGS__});
#include "x11/data/images.def"
#undef IMAGE

    // Half floats store more precision than bytes.
    const GLushort big[] = {0x4500, 0x3C00, 0x3C00, 0x3C00};
    image(GL_RGBA, GL_HALF_FLOAT_OES, big);
    use(texturedVertex, tenthFragment);
    EXPECT_EQ(sampled()[0], 128);
}

TEST_F(BackEndTextures, TheHostEncodesPixelsWhereAnExtensionSaysSo) {
    startTextured(3, 1);
    constexpr GLint dxt3 = 0x83F2, signedRgtc2 = 0x8DBE, bptc = 0x8E8C, etc2 = 0x9278;
    const std::vector<GLubyte> texels(64, 255);
    const auto encode = [&](GLint internal, GLenum format, GLenum type) {
        ES(glTexImage2D)(GL_TEXTURE_2D, 0, internal, 4, 4, 0, format, type, texels.data());
        return error();
    };
    EXPECT_EQ(encode(dxt3, GL_RGBA, GL_UNSIGNED_BYTE), GL_NO_ERROR);
    EXPECT_EQ(level(GL_TEXTURE_INTERNAL_FORMAT), dxt3);
    EXPECT_EQ(sampled(), (Pixel{255, 255, 255, 255}));
    EXPECT_EQ(encode(signedRgtc2, GL_RG, GL_BYTE), GL_NO_ERROR);
    EXPECT_EQ(encode(bptc, GL_RGBA, GL_UNSIGNED_BYTE), GL_NO_ERROR);
    EXPECT_NE(encode(etc2, GL_RGBA, GL_UNSIGNED_BYTE), GL_NO_ERROR) << "blocks alone";
}

TEST_F(BackEndTextures, StoragesAndPartsOfImagesHaveThemToo) {
    startTextured(3, 0);
    const GLubyte bytes[] = {51, 102};
    ES(glTexStorage2D)(GL_TEXTURE_2D, 1, GL_LUMINANCE8_ALPHA8_EXT, 1, 1);
    ES(glTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 1, 1, GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE, bytes);
    EXPECT_EQ(sampled(), (Pixel{51, 51, 51, 102}));
    GLfloat untouched = -2;
    ES(glGetTexLevelParameterfv)(GL_TEXTURE_2D, -1, GL_TEXTURE_INTERNAL_FORMAT, &untouched);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
    EXPECT_EQ(untouched, -2);
    bindNew();
    // A red block of ETC1, slightly brighter by the first modifier.
    const GLubyte block[8] = {0xF8, 0, 0, 0, 0, 0, 0, 0};
    ES(glCompressedTexImage2D)(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 4, 4, 0, sizeof block, block);
    EXPECT_EQ(sampled(), (Pixel{255, 2, 2, 255}));
}

TEST_F(BackEndTextures, TheApplicationsSwizzleLiesOverThatOfTheFormat) {
    startTextured(3, 0);
    const Pixel bytes = {51, 102, 153, 204};
    ES(glTexParameteri)(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_R, GL_ALPHA);
    image(GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE, bytes.data());
    EXPECT_EQ(sampled(), (Pixel{102, 51, 51, 102}));
    ES(glTexParameterf)(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_G, GL_ONE);
    EXPECT_EQ(sampled(), (Pixel{102, 255, 51, 102}));
    GLint swizzle = 0;
    ES(glGetTexParameteriv)(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_R, &swizzle);
    EXPECT_EQ(swizzle, GL_ALPHA);
    image(bytes);
    EXPECT_EQ(sampled(), (Pixel{204, 255, 153, 204}));
}

TEST_F(BackEndTextures, CopiesTakeTheChannelsThatTheFormatNames) {
    startTextured(2, 0);
    ES(glPixelStorei)(GL_UNPACK_ALIGNMENT, 8);
    const auto check = [&](GLenum format, const Pixel &expected) {
        SCOPED_TRACE(testing::Message() << std::hex << format);
        clear(0.2F, 0.4F, 0.6F, 0.8F);
        ES(glCopyTexImage2D)(GL_TEXTURE_2D, 0, format, 2, 2, 3, 3, 0);
        EXPECT_EQ(sampled(), expected);
        image(static_cast<GLint>(format), GL_UNSIGNED_BYTE, nullptr);
        clear(0.2F, 0.4F, 0.6F, 0.8F);
        ES(glCopyTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 2, 2, 1, 1);
        EXPECT_EQ(sampled(), expected);
    };
#define COPY(format, r, g, b, a) check(format, {r, g, b, a});
#include "x11/data/copies.def"
#undef COPY
}

TEST_F(BackEndTextures, BlocksAreCopiedToTexelsOfTheirSizeAndBack) {
    startTextured(3, 2);
    // A red block, and one that exceeds the border.
    const std::array<GLubyte, 16> bytes = {0xFF, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0, 0, 0};
    const auto storage = [&](GLenum format, GLsizei width, GLsizei height) {
        const GLuint texture = bindNew();
        ES(glTexStorage2D)(GL_TEXTURE_2D, 1, format, width, height);
        return texture;
    };
    const auto copy = [&](GLuint from, GLuint to, GLsizei width, GLsizei height) {
        ES(glCopyImageSubData)
        (from, GL_TEXTURE_2D, 0, 0, 0, 0, to, GL_TEXTURE_2D, 0, 0, 0, 0, width, height, 1);
        EXPECT_EQ(error(), GL_NO_ERROR);
    };
    const GLuint blocks = storage(GL_COMPRESSED_RGB8_ETC2, 6, 4);
    ES(glCompressedTexSubImage2D)
    (GL_TEXTURE_2D, 0, 0, 0, 6, 4, GL_COMPRESSED_RGB8_ETC2, sizeof bytes, bytes.data());
    const GLuint texels = storage(GL_RG32UI, 2, 1);
    const GLuint back = storage(GL_COMPRESSED_SRGB8_ETC2, 6, 4);
    const GLuint again = storage(GL_COMPRESSED_RGB8_ETC2, 6, 4);
    copy(blocks, texels, 6, 4);
    copy(texels, back, 2, 1);
    copy(back, again, 6, 4);
    EXPECT_EQ(sampled(), (Pixel{255, 2, 2, 255}));

    ES(glGenerateMipmap)(GL_TEXTURE_2D);
    EXPECT_EQ(error(), GL_INVALID_OPERATION) << "of blocks";
}

TEST_F(BackEndTextures, AnEglImageIsTheTextureThatItWasMadeOf) {
    startTextured(2, 0);
    const GLuint source = bindNew();
    image(red);
    uint64_t record[] = {0x30B1, source}; // EGL_GL_TEXTURE_2D in 32 bits, the name in 64
    const GLuint sibling = bindNew();
    ES(glEGLImageTargetTexture2DOES)(GL_TEXTURE_2D, record);
    EXPECT_EQ(sampled(), red);
    ES(glTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, blue.data());
    ES(glBindTexture)(GL_TEXTURE_2D, source);
    EXPECT_EQ(sampled(), blue);

    // One image after the other, as video streams do.
    const GLuint other = bindNew();
    image(red);
    record[1] = other;
    ES(glBindTexture)(GL_TEXTURE_2D, sibling);
    ES(glEGLImageTargetTexture2DOES)(GL_TEXTURE_2D, record);
    ES(glBindTexture)(GL_TEXTURE_2D, source);
    EXPECT_EQ(sampled(), blue) << "the first one keeps its own";
    ES(glDeleteTextures)(1, &other);
    ES(glBindTexture)(GL_TEXTURE_2D, sibling);
    EXPECT_EQ(sampled(), red) << "the sibling outlives the source";
}

TEST_F(BackEndTextures, NamesMayBeMadeUp) {
    startTextured(2, 0);
    // 7000000 is beyond the names that are found without a lock.
    for (const GLuint name : {100u, 7000000u}) {
        EXPECT_EQ(ES(glIsTexture)(name), GL_FALSE);
        bind(name);
        image(name == 100 ? red : blue);
        EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), static_cast<GLint>(name));
        EXPECT_EQ(ES(glIsTexture)(name), GL_TRUE);
    }
    std::vector<GLuint> generated(200);
    ES(glGenTextures)(200, generated.data());
    for (const GLuint name : generated)
        EXPECT_NE(name, 100u) << "in use already";
    bind(100);
    EXPECT_EQ(sampled(), red);

    GLuint name = 7000000;
    ES(glFramebufferTexture2D)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, name, 0);
    EXPECT_EQ(pixel(0, 0), blue);
    GLint attached = 0;
    const auto ofAttachment = ES(glGetFramebufferAttachmentParameteriv);
    ofAttachment(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME, &attached);
    EXPECT_EQ(attached, static_cast<GLint>(name));
    EXPECT_EQ(integer(GL_FRAMEBUFFER_BINDING), 40);
    EXPECT_EQ(integer(GL_RENDERBUFFER_BINDING), 50);
    ES(glBindBuffer)(GL_ARRAY_BUFFER, 60);
    EXPECT_EQ(integer(GL_ARRAY_BUFFER_BINDING), 60);
    char label[20] = "";
    ES(glObjectLabelKHR)(GL_TEXTURE, name, -1, "sky");
    ES(glGetObjectLabelEXT)(GL_TEXTURE, name, sizeof label, nullptr, label);
    EXPECT_STREQ(label, "sky");
    ES(glLabelObjectEXT)(GL_BUFFER_OBJECT_EXT, 60, 0, "corners");
    ES(glGetObjectLabelKHR)(GL_BUFFER_KHR, 60, sizeof label, nullptr, label);
    EXPECT_STREQ(label, "corners");
    ES(glDeleteTextures)(1, &name);
    EXPECT_EQ(ES(glIsTexture)(name), GL_FALSE);
}
