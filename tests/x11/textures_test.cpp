#define GL_GLEXT_PROTOTYPES
#include "x11/picture_fixture.h"

#include <GLES2/gl2ext.h>

#include <functional>

namespace {

constexpr const char *texturedVertex = "attribute vec2 position; varying vec2 place;\n"
                                       "void main() { place = position * 0.5 + 0.5;\n"
                                       "gl_Position = vec4(position, 0.0, 1.0); }";
constexpr const char *texturedFragment = "precision mediump float; uniform sampler2D image; varying vec2 place;\n"
                                         "void main() { gl_FragColor = texture2D(image, place); }";

class BackEndTextures : public BackEndPicture {
protected:
    void startTextured(int major, int minor) {
        startWith(major, minor, texturedVertex, texturedFragment);
        // The surface may have an alpha of few bits.
        GLuint names[2] = {};
        ES(glGenFramebuffers)(1, &names[0]);
        ES(glBindFramebuffer)(GL_FRAMEBUFFER, names[0]);
        ES(glGenRenderbuffers)(1, &names[1]);
        ES(glBindRenderbuffer)(GL_RENDERBUFFER, names[1]);
        ES(glRenderbufferStorage)(GL_RENDERBUFFER, GL_RGBA8, size, size);
        ES(glFramebufferRenderbuffer)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, names[1]);
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
        ES(glTexParameteri)(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        ES(glTexParameteri)(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    }
    void image(GLenum internal, GLenum format, GLenum type, const void *pixels) {
        ES(glTexImage2D)(GL_TEXTURE_2D, 0, static_cast<GLint>(internal), 1, 1, 0, format, type, pixels);
    }
    // The texture's colour, as a shader sees it.
    Pixel sampled() {
        const GLfloat corners[] = {-1, -1, 3, -1, -1, 3};
        ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
        ES(glVertexAttribPointer)(0, 2, GL_FLOAT, GL_FALSE, 0, corners);
        ES(glEnableVertexAttribArray)(0);
        ES(glDrawArrays)(GL_TRIANGLES, 0, 3);
        return pixel(5, 5);
    }
};

} // namespace

TEST_F(BackEndTextures, FormatsThatOnlyEsHasAreSampledAsEsSays) {
    startTextured(3, 0);
    const GLubyte bytes[] = {51, 102, 153, 204};
    const GLfloat floats[] = {0.2F, 0.4F, 0.6F, 0.8F};
    const GLushort halves[] = {0x3266, 0x3666, 0x38CD, 0x3A66};
    const GLushort shortDepth = 0x3333;
    const GLuint depth = 0x66666666;
    constexpr GLenum halfOes = GL_HALF_FLOAT_OES;
    const struct {
        GLenum internal, type;
        const void *pixels;
        Pixel expected;
    } cases[] = {
        {GL_ALPHA, GL_UNSIGNED_BYTE, bytes, {0, 0, 0, 51}},
        {GL_LUMINANCE, GL_UNSIGNED_BYTE, bytes, {51, 51, 51, 255}},
        {GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE, bytes, {51, 51, 51, 102}},
        {GL_ALPHA, GL_FLOAT, floats, {0, 0, 0, 51}},
        {GL_LUMINANCE, halfOes, halves, {51, 51, 51, 255}},
        {GL_LUMINANCE_ALPHA, GL_FLOAT, floats, {51, 51, 51, 102}},
        {GL_RGB, halfOes, halves, {51, 102, 153, 255}},
        {GL_RGBA, GL_FLOAT, floats, {51, 102, 153, 204}},
        {GL_RGBA, halfOes, halves, {51, 102, 153, 204}},
        {GL_BGRA_EXT, GL_UNSIGNED_BYTE, bytes, {153, 102, 51, 204}},
        {GL_RGBA, GL_UNSIGNED_BYTE, bytes, {51, 102, 153, 204}},
        {GL_DEPTH_COMPONENT, GL_UNSIGNED_SHORT, &shortDepth, {51, 51, 51, 255}},
        {GL_DEPTH_COMPONENT, GL_UNSIGNED_INT, &depth, {102, 102, 102, 255}},
    };
    for (const auto &row : cases) {
        image(row.internal, row.internal, row.type, row.pixels);
        EXPECT_EQ(sampled(), row.expected) << std::hex << row.internal << ' ' << row.type;
    }
    // Half floats keep more than a byte does.
    const GLushort big[] = {0x4500, 0x3C00, 0x3C00, 0x3C00};
    image(GL_RGBA, GL_RGBA, halfOes, big);
    use(texturedVertex, "precision mediump float; uniform sampler2D image; varying vec2 place;\n"
                        "void main() { gl_FragColor = texture2D(image, place) / 10.0; }");
    EXPECT_EQ(sampled()[0], 128);
}

TEST_F(BackEndTextures, AnImageTellsWhatTheApplicationGave) {
    start(3, 1);
    bindNew();
    const struct {
        GLenum internal;
        GLint sizes[4];
    } cases[] = {
        {GL_ALPHA, {0, 0, 0, 8}},
        {GL_LUMINANCE, {0, 0, 0, 0}},
        {GL_LUMINANCE_ALPHA, {0, 0, 0, 8}},
        {GL_RGBA, {8, 8, 8, 8}},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.internal);
        image(row.internal, row.internal, GL_UNSIGNED_BYTE, nullptr);
        GLfloat internal = 0;
        ES(glGetTexLevelParameterfv)(GL_TEXTURE_2D, 0, GL_TEXTURE_INTERNAL_FORMAT, &internal);
        EXPECT_EQ(internal, static_cast<GLfloat>(row.internal));
        for (GLenum channel = 0; channel < 4; ++channel) {
            GLint size = -2;
            ES(glGetTexLevelParameteriv)(GL_TEXTURE_2D, 0, GL_TEXTURE_RED_SIZE + channel, &size);
            EXPECT_EQ(size, row.sizes[channel]) << channel;
        }
    }
    image(GL_ALPHA, GL_ALPHA, GL_UNSIGNED_BYTE, nullptr);
    GLint untouched = -2;
    ES(glGetTexLevelParameteriv)(GL_TEXTURE_2D, -1, GL_TEXTURE_INTERNAL_FORMAT, &untouched);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
    EXPECT_EQ(untouched, -2);
}

TEST_F(BackEndTextures, AnImageOfEs2HasTheFormatsOfEs2) {
    start(2, 0);
    bindNew();
    const struct {
        GLenum internal, format, type;
        GLint error;
    } cases[] = {
        {GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, GL_NO_ERROR},
        {GL_RGB, GL_RGB, GL_UNSIGNED_SHORT_5_6_5, GL_NO_ERROR},
        {GL_ALPHA, GL_ALPHA, GL_HALF_FLOAT_OES, GL_NO_ERROR},
        {GL_RGBA8, GL_RGBA, GL_UNSIGNED_BYTE, GL_INVALID_VALUE},
        {GL_RGB, GL_RGBA, GL_UNSIGNED_BYTE, GL_INVALID_OPERATION},
        {GL_RGBA, GL_RGBA, GL_UNSIGNED_SHORT_5_6_5, GL_INVALID_OPERATION},
        {GL_RGBA, GL_RGBA, GL_INT, GL_INVALID_ENUM},
        {GL_RGBA, GL_RGBA_INTEGER, GL_UNSIGNED_BYTE, GL_INVALID_ENUM},
    };
    for (const auto &row : cases) {
        image(row.internal, row.format, row.type, nullptr);
        EXPECT_EQ(error(), row.error) << std::hex << row.internal << ' ' << row.format << ' ' << row.type;
    }
}

TEST_F(BackEndTextures, StoragesAndPartsOfImagesHaveThemToo) {
    startTextured(3, 0);
    const GLubyte bytes[] = {51, 102};
    ES(glTexStorage2D)(GL_TEXTURE_2D, 1, GL_LUMINANCE8_ALPHA8_EXT, 1, 1);
    ES(glTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 1, 1, GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE, bytes);
    EXPECT_EQ(sampled(), (Pixel{51, 51, 51, 102}));
    bindNew();
    image(GL_LUMINANCE, GL_RGB, GL_UNSIGNED_BYTE, bytes);
    EXPECT_EQ(error(), GL_INVALID_OPERATION) << "the two formats of an image are one in ES";
    // Red on a block of ETC1, which holds one colour without modifiers of weight.
    const GLubyte block[8] = {0xF8, 0, 0, 0, 0, 0, 0, 0};
    ES(glCompressedTexImage2D)(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 4, 4, 0, sizeof block, block);
    const Pixel red = sampled();
    EXPECT_GT(red[0], 240);
    EXPECT_LT(red[1], 10);
}

TEST_F(BackEndTextures, TheApplicationsSwizzleLiesOverThatOfTheFormat) {
    startTextured(3, 0);
    const GLubyte bytes[] = {51, 102, 153, 204};
    ES(glTexParameteri)(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_R, GL_ALPHA);
    image(GL_LUMINANCE_ALPHA, GL_LUMINANCE_ALPHA, GL_UNSIGNED_BYTE, bytes);
    EXPECT_EQ(sampled(), (Pixel{102, 51, 51, 102}));
    ES(glTexParameterf)(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_G, GL_ONE);
    EXPECT_EQ(sampled(), (Pixel{102, 255, 51, 102}));
    GLint swizzle = 0;
    ES(glGetTexParameteriv)(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_R, &swizzle);
    EXPECT_EQ(swizzle, GL_ALPHA);
    image(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, bytes);
    EXPECT_EQ(sampled(), (Pixel{204, 255, 153, 204}));
}

TEST_F(BackEndTextures, CopiesTakeTheChannelsThatTheFormatNames) {
    startTextured(2, 0);
    ES(glPixelStorei)(GL_UNPACK_ALIGNMENT, 8);
    const struct {
        GLenum format;
        Pixel expected;
    } cases[] = {
        {GL_ALPHA, {0, 0, 0, 204}},
        {GL_LUMINANCE, {51, 51, 51, 255}},
        {GL_LUMINANCE_ALPHA, {51, 51, 51, 204}},
        {GL_RGBA, {51, 102, 153, 204}},
    };
    for (const auto &row : cases) {
        for (const bool isPart : {false, true}) {
            ES(glClearColor)(0.2F, 0.4F, 0.6F, 0.8F);
            ES(glClear)(GL_COLOR_BUFFER_BIT);
            if (isPart) {
                image(row.format, row.format, GL_UNSIGNED_BYTE, nullptr);
                ES(glCopyTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 2, 2, 1, 1);
            } else {
                ES(glCopyTexImage2D)(GL_TEXTURE_2D, 0, row.format, 2, 2, 3, 3, 0);
            }
            EXPECT_EQ(sampled(), row.expected) << std::hex << row.format;
        }
    }
}

TEST_F(BackEndTextures, AnEglImageIsTheTextureThatItWasMadeOf) {
    startTextured(2, 0);
    const GLubyte first[] = {255, 0, 0, 255}, second[] = {0, 0, 255, 255};
    const GLuint source = bindNew();
    image(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, first);
    struct {
        uint32_t target;
        uint64_t buffer;
    } record = {0x30B1, source}, native = {0x3140, source};
    const GLuint sibling = bindNew();
    ES(glEGLImageTargetTexture2DOES)(GL_TEXTURE_2D, &record);
    EXPECT_EQ(sampled(), (Pixel{255, 0, 0, 255}));
    ES(glTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, second);
    ES(glBindTexture)(GL_TEXTURE_2D, source);
    EXPECT_EQ(sampled(), blue);

    // One image after the other, as a stream of pictures does.
    const GLuint other = bindNew();
    image(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, first);
    record.buffer = other;
    ES(glBindTexture)(GL_TEXTURE_2D, sibling);
    ES(glEGLImageTargetTexture2DOES)(GL_TEXTURE_2D, &record);
    ES(glBindTexture)(GL_TEXTURE_2D, source);
    EXPECT_EQ(sampled(), blue) << "the first one keeps its own";
    ES(glDeleteTextures)(1, &other);
    ES(glBindTexture)(GL_TEXTURE_2D, sibling);
    EXPECT_EQ(sampled(), (Pixel{255, 0, 0, 255})) << "the sibling outlives the source";
    ES(glEGLImageTargetTexture2DOES)(GL_TEXTURE_2D, &native);
    EXPECT_EQ(error(), GL_INVALID_OPERATION);
    ES(glEGLImageTargetTexture2DOES)(GL_TEXTURE_2D, nullptr);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
    ES(glEGLImageTargetRenderbufferStorageOES)(GL_RENDERBUFFER, &record);
    EXPECT_EQ(error(), GL_INVALID_OPERATION);
}

TEST_F(BackEndTextures, NamesMayBeMadeUp) {
    startTextured(2, 0);
    const GLubyte red[] = {255, 0, 0, 255}, bluePixel[] = {0, 0, 255, 255};
    // 7000000 is past the names that are found without a lock.
    for (const GLuint name : {100u, 7000000u}) {
        EXPECT_EQ(ES(glIsTexture)(name), GL_FALSE);
        bind(name);
        image(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, name == 100 ? red : bluePixel);
        EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), static_cast<GLint>(name));
        EXPECT_EQ(ES(glIsTexture)(name), GL_TRUE);
    }
    std::vector<GLuint> generated(200);
    ES(glGenTextures)(200, generated.data());
    for (const GLuint name : generated)
        EXPECT_NE(name, 100u) << "in use already";
    bind(100);
    EXPECT_EQ(sampled(), (Pixel{255, 0, 0, 255}));

    GLuint name = 7000000;
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 40);
    ES(glFramebufferTexture2D)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, name, 0);
    EXPECT_EQ(ES(glCheckFramebufferStatus)(GL_FRAMEBUFFER), GL_FRAMEBUFFER_COMPLETE);
    EXPECT_EQ(pixel(0, 0), blue);
    GLint attached = 0;
    ES(glGetFramebufferAttachmentParameteriv)
    (GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME, &attached);
    EXPECT_EQ(attached, static_cast<GLint>(name));
    EXPECT_EQ(integer(GL_FRAMEBUFFER_BINDING), 40);
    ES(glBindRenderbuffer)(GL_RENDERBUFFER, 50);
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
