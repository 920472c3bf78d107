#include "x11/picture_fixture.h"

#include <GLES2/gl2ext.h>

#include <cstdlib>

namespace {

// The driver reads these while it makes a context, which the fixture does first of all.
struct PoorHost {
    PoorHost() { setenv("MESA_EXTENSION_OVERRIDE", "-GL_ARB_ES3_compatibility", 1); }
};
class BackEndOnAPoorHost : private PoorHost, public BackEndPicture {};

} // namespace

TEST_F(BackEndOnAPoorHost, ContextsThatItCannotCarryAreRefusedInWords) {
    const uint64_t displayAndHandle[2] = {1, 1};
    attribs.esMajor = 3;
    testing::internal::CaptureStderr();
    EXPECT_EQ(createEsContext(&attribs, displayAndHandle, nullptr, nullptr), nullptr);
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_NE(told.find("no OpenGL ES 3 context"), std::string::npos) << told;
    EXPECT_NE(told.find("lacks GL_ARB_ES3_compatibility"), std::string::npos) << told;
    EXPECT_EQ(createEsContext(nullptr, displayAndHandle, nullptr, nullptr), nullptr);
    start(2, 0);
}

TEST_F(BackEndOnAPoorHost, Etc1IsDecodedHere) {
    start(2, 0);
    // Red on the left, blue on the right, each a little brighter by the first modifier.
    const GLubyte block[8] = {0xF0, 0, 0x0F, 0, 0, 0, 0, 0};
    GLuint framebuffer = 0, texture = 0;
    ES(glGenTextures)(1, &texture);
    ES(glBindTexture)(GL_TEXTURE_2D, texture);
    ES(glPixelStorei)(GL_UNPACK_ALIGNMENT, 8);
    const auto upload = [&](GLsizei bytes) {
        ES(glCompressedTexImage2D)(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 3, 3, 0, bytes, block);
        return error();
    };
    EXPECT_EQ(upload(7), GL_INVALID_VALUE);
    EXPECT_EQ(upload(8), GL_NO_ERROR);
    ES(glCompressedTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 3, 3, GL_ETC1_RGB8_OES, 8, block);
    EXPECT_EQ(error(), GL_INVALID_OPERATION);
    ES(glGenFramebuffers)(1, &framebuffer);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, framebuffer);
    ES(glFramebufferTexture2D)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    EXPECT_EQ(pixel(1, 2), (Pixel{255, 2, 2, 255}));
    EXPECT_EQ(pixel(2, 2), (Pixel{2, 2, 255, 255}));
    const std::string announced = reinterpret_cast<const char *>(ES(glGetString)(GL_EXTENSIONS));
    EXPECT_NE(announced.find("GL_OES_compressed_ETC1_RGB8_texture"), std::string::npos);
}
