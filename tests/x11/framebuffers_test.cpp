#include "x11/back_end_fixture.h"

#include <cstdint>

namespace {

class BackEndFramebuffers : public BackEnd {
protected:
    // Framebuffer 60 with a new texture of this format.
    void drawToTexture(GLenum internal, GLenum format, GLenum type) {
        GLuint texture = 0;
        ES(glGenTextures)(1, &texture);
        ES(glBindTexture)(GL_TEXTURE_2D, texture);
        ES(glTexImage2D)(GL_TEXTURE_2D, 0, static_cast<GLint>(internal), size, size, 0, format, type, nullptr);
        ES(glBindFramebuffer)(GL_FRAMEBUFFER, 60);
        ES(glFramebufferTexture2D)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    }
    GLubyte gray(GLenum target, GLuint framebuffer) {
        ES(glBindFramebuffer)(target, framebuffer);
        return pixel(3, 3)[0];
    }
    // Deleting a bound framebuffer binds the surface.
    void bind(GLenum target, GLuint framebuffer) {
        const GLuint deleted = 41;
        const bool isByDeletion = framebuffer == 0 && bindsSurfaceByDeletion;
        ES(glBindFramebuffer)(target, isByDeletion ? deleted : framebuffer);
        if (isByDeletion) ES(glDeleteFramebuffers)(1, &deleted);
    }
    void blit(GLuint from, GLuint to) {
        bind(GL_READ_FRAMEBUFFER, from);
        bind(GL_DRAW_FRAMEBUFFER, to);
        ES(glBlitFramebuffer)(0, 0, size, size, 0, 0, size, size, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    }
    bool bindsSurfaceByDeletion = false;
};

} // namespace

TEST_F(BackEndFramebuffers, BlitsConvertWhatHasSrgbValuesAndNothingElse) {
    start(3, 0);
    GLint encoding = 0;
    ES(glGetFramebufferAttachmentParameteriv)
    (GL_FRAMEBUFFER, GL_BACK, GL_FRAMEBUFFER_ATTACHMENT_COLOR_ENCODING, &encoding);
    EXPECT_EQ(encoding, GL_LINEAR) << "of the surface, whatever the host's can do";
    const struct {
        GLenum format;
        GLubyte fromSurface, toSurface; // the results of 128, as values of the image
        bool isByDeletion;
    } rows[] = {{GL_RGBA8, 128, 128, false}, {GL_SRGB8_ALPHA8, 188, 55, false}, {GL_SRGB8_ALPHA8, 188, 55, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << row.format << ' ' << row.isByDeletion);
        bindsSurfaceByDeletion = row.isByDeletion;
        ES(glBindFramebuffer)(GL_FRAMEBUFFER, 0);
        clear(0.5F, 0.5F, 0.5F);
        drawToImage(row.format);
        blit(0, 40);
        EXPECT_NEAR(gray(GL_READ_FRAMEBUFFER, 40), row.fromSurface, 1);
        // The image's own value of 128 is unchanged.
        ES(glBindFramebuffer)(GL_FRAMEBUFFER, 40);
        const float linear = row.format == GL_RGBA8 ? 0.5F : 0.2159F;
        clear(linear, linear, linear);
        EXPECT_NEAR(gray(GL_READ_FRAMEBUFFER, 40), 128, 1);
        ES(glEnable)(GL_SCISSOR_TEST);
        ES(glScissor)(0, 0, 8, 8);
        blit(40, 0);
        ES(glDisable)(GL_SCISSOR_TEST);
        EXPECT_NEAR(gray(GL_READ_FRAMEBUFFER, 0), row.toSurface, 1);
        EXPECT_NEAR(pixel(12, 12)[0], 128, 1) << "outside of the scissor";
    }
    blit(40, 40);
    EXPECT_EQ(error(), GL_INVALID_OPERATION) << "to itself";
}

TEST_F(BackEndFramebuffers, AreCompleteWithImagesThatEsDrawsTo) {
    const auto check = [&](int version, GLenum status, GLenum internal, GLenum format, GLenum type) {
        SCOPED_TRACE(testing::Message() << version << std::hex << ' ' << internal << ' ' << type);
        start(version / 10, version % 10);
        drawToTexture(internal, format, type);
        EXPECT_EQ(ES(glCheckFramebufferStatus)(GL_FRAMEBUFFER), status);
    };
#define STATUS(version, status, internal, format, type) check(version, status, internal, format, type);
#include "x11/data/drawn_formats.def"
#undef STATUS

    constexpr GLenum incompleteDimensions = 0x8CD9;
    for (const auto &[major, status] : {std::pair{2, incompleteDimensions}, {3, GLenum(GL_FRAMEBUFFER_COMPLETE)}}) {
        start(major, 0);
        drawToTexture(GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE);
        ES(glBindRenderbuffer)(GL_RENDERBUFFER, 61);
        ES(glRenderbufferStorage)(GL_RENDERBUFFER, GL_DEPTH_COMPONENT16, size * 2, size);
        ES(glFramebufferRenderbuffer)(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, 61);
        EXPECT_EQ(ES(glCheckFramebufferStatus)(GL_FRAMEBUFFER), status) << "images of two sizes";
    }
}

TEST_F(BackEndFramebuffers, ResolveIntoTexturesOfTheFormat) {
    const struct {
        GLenum samples, texture, format, type;
        GLenum error;
    } rows[] = {
        {GL_RGBA8, GL_RGBA8, GL_RGBA, GL_UNSIGNED_BYTE, GL_NO_ERROR},
        {GL_RGBA8, GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, GL_NO_ERROR}, // an unsized format has 8 bits
        {GL_RGB8, GL_RGB, GL_RGB, GL_UNSIGNED_BYTE, GL_NO_ERROR},
        {GL_RGB565, GL_RGB, GL_RGB, GL_UNSIGNED_SHORT_5_6_5, GL_NO_ERROR},
        {GL_RGBA8, GL_RGB, GL_RGB, GL_UNSIGNED_BYTE, GL_INVALID_OPERATION},
        {GL_RGBA4, GL_RGBA, GL_RGBA, GL_UNSIGNED_BYTE, GL_INVALID_OPERATION},
    };
    start(3, 0);
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << row.samples << ' ' << row.texture << ' ' << row.type);
        drawToTexture(row.texture, row.format, row.type);
        ES(glBindRenderbuffer)(GL_RENDERBUFFER, 62);
        ES(glRenderbufferStorageMultisample)(GL_RENDERBUFFER, 4, row.samples, size, size);
        ES(glBindFramebuffer)(GL_FRAMEBUFFER, 61);
        ES(glFramebufferRenderbuffer)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, 62);
        clear(1, 1, 1);
        blit(61, 60);
        EXPECT_EQ(error(), row.error);
        if (row.error == GL_NO_ERROR) {
            EXPECT_EQ(gray(GL_READ_FRAMEBUFFER, 60), 255);
        }
    }
}

TEST_F(BackEndFramebuffers, KeepTheNamesOfWhatWasDeletedWhileAttached) {
    start(3, 0);
    drawToImage(GL_RGBA8);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 0);
    const GLuint renderbuffer = 50;
    ES(glDeleteRenderbuffers)(1, &renderbuffer);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 40);
    GLint name = 0;
    ES(glGetFramebufferAttachmentParameteriv)
    (GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME, &name);
    EXPECT_EQ(name, 50);
    blit(40, 0);
    EXPECT_EQ(ES(glCheckFramebufferStatus)(GL_READ_FRAMEBUFFER), GL_FRAMEBUFFER_COMPLETE);
    EXPECT_EQ(error(), GL_NO_ERROR);
    ES(glBindRenderbuffer)(GL_RENDERBUFFER, 51);
    ES(glGetRenderbufferParameteriv)(GL_RENDERBUFFER, GL_RENDERBUFFER_INTERNAL_FORMAT, &name);
    EXPECT_EQ(name, GL_RGBA4) << "before it holds anything";
}

TEST_F(BackEndFramebuffers, GiveTheirDepthInTheUpperBitsOfAnInteger) {
    start(3, 0);
    ES(glBindRenderbuffer)(GL_RENDERBUFFER, 61);
    ES(glRenderbufferStorage)(GL_RENDERBUFFER, GL_DEPTH_COMPONENT24, size, size);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 60);
    ES(glFramebufferRenderbuffer)(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, 61);
    ES(glClearDepthf)(0.75F);
    ES(glClear)(GL_DEPTH_BUFFER_BIT);
    GLuint depth = 0;
    ES(glReadPixels)(0, 0, 1, 1, GL_DEPTH_COMPONENT, GL_UNSIGNED_INT_24_8, &depth);
    EXPECT_EQ(error(), GL_NO_ERROR);
    EXPECT_NEAR(depth >> 8, 0.75 * 0xFFFFFF, 1);
}
