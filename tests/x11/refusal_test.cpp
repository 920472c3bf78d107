#include "x11/back_end_fixture.h"

#include <cstdlib>

namespace {

// The driver reads this when it creates a context, which the fixture does first.
struct PoorHost {
    PoorHost() { setenv("MESA_EXTENSION_OVERRIDE", "-GL_ARB_ES3_compatibility", 1); }
};
class BackEndOnAPoorHost : private PoorHost, public BackEnd {};

} // namespace

TEST_F(BackEndOnAPoorHost, ContextsThatItCannotCarryAreRefusedInWords) {
    const uint64_t displayAndHandle[2] = {1, 1};
    attribs.esMajor = 3;
    testing::internal::CaptureStderr();
    EXPECT_EQ(OWN(zvCreateEsContext)(&attribs, displayAndHandle, nullptr, nullptr), nullptr);
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_THAT(told, testing::HasSubstr("no OpenGL ES 3 context"));
    EXPECT_THAT(told, testing::HasSubstr("lacks GL_ARB_ES3_compatibility"));
    EXPECT_EQ(OWN(zvCreateEsContext)(nullptr, displayAndHandle, nullptr, nullptr), nullptr);
}

TEST_F(BackEndOnAPoorHost, Etc1IsDecodedHere) {
    start(2, 0);
    EXPECT_THAT(text(GL_EXTENSIONS), testing::HasSubstr("GL_OES_compressed_ETC1_RGB8_texture"));
    // Red on the left, blue on the right, each slightly brighter by the first modifier.
    const GLubyte block[8] = {0xF0, 0, 0x0F, 0, 0, 0, 0, 0};
    ES(glBindTexture)(GL_TEXTURE_2D, 1);
    ES(glPixelStorei)(GL_UNPACK_ALIGNMENT, 8);
    const auto upload = ES(glCompressedTexImage2D);
    upload(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 3, 3, 0, 7, block);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
    upload(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 3, 3, 0, sizeof block, block);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 1);
    ES(glFramebufferTexture2D)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, 1, 0);
    EXPECT_EQ(pixel(1, 2), (Pixel{255, 2, 2, 255}));
    EXPECT_EQ(pixel(2, 2), (Pixel{2, 2, 255, 255}));
}
