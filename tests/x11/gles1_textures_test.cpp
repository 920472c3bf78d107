#include "x11/gles1_fixture.h"

namespace {

class Gles1Textures : public Gles1 {
protected:
    Gles1Textures() { start(); }

    // Draws the bound texture's whole image over the surface: each texel covers (size / width) pixels.
    void drawImage(GLint width, GLint height) {
        const GLint crop[] = {0, 0, width, height};
        ES(glTexParameteriv)(GL_TEXTURE_2D, GL_TEXTURE_CROP_RECT_OES, crop);
        clear();
        ES(glDrawTexiOES)(0, 0, 0, size, size);
    }
};

} // namespace

TEST_F(Gles1Textures, DecodesPalettedTexturesWithAllTheirLevels) {
    const std::pair<std::vector<GLubyte>, std::vector<GLubyte>> palettes[] = {
#include "x11/data/es1_palettes.def"
    };
    for (GLenum format = GL_PALETTE4_RGB8_OES; format <= GL_PALETTE8_RGB5_A1_OES; ++format) {
        SCOPED_TRACE(testing::Message() << std::hex << format);
        const bool isByte = format >= GL_PALETTE8_RGB8_OES;
        const auto &[first, second] = palettes[(format - GL_PALETTE4_RGB8_OES) % 5];
        std::vector<GLubyte> data(first.size() * (isByte ? 256 : 16));
        std::ranges::copy(first, data.begin());
        std::ranges::copy(second, data.begin() + static_cast<ptrdiff_t>(first.size()));
        // Level 0: red, green, green, red. Level 1: green.
        const std::vector<GLubyte> indices =
            isByte ? std::vector<GLubyte>{0, 1, 1, 0, 1} : std::vector<GLubyte>{0x01, 0x10, 0x10};
        data.insert(data.end(), indices.begin(), indices.end());
        bindTexture();
        const auto length = static_cast<GLsizei>(data.size());
        ES(glCompressedTexImage2D)(GL_TEXTURE_2D, -1, format, 2, 2, 0, length, data.data());
        drawImage(2, 2);
        EXPECT_EQ((std::array{pixel(1, 1), pixel(14, 1), pixel(1, 14)}), (std::array{red, green, green}));
        ES(glTexParameteri)(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST_MIPMAP_NEAREST);
        clear();
        ES(glDrawTexiOES)(0, 0, 0, 1, 1);
        EXPECT_EQ(pixel(0, 0), green) << "the lower level";

        ES(glCompressedTexImage2D)(GL_TEXTURE_2D, -1, format, 2, 2, 0, length - 1, data.data());
        EXPECT_EQ(error(), GL_INVALID_VALUE) << "too short";
        ES(glCompressedTexImage2D)(GL_TEXTURE_2D, 0, format, -2, 2, 0, length, data.data());
        EXPECT_EQ(error(), GL_INVALID_VALUE);
    }
}

// The host's decoder of ETC2, which accepts every ETC1 block, is the reference.
TEST_F(Gles1Textures, DecodesEtc1AsTheHostDoes) {
    constexpr GLenum compressedRgb8Etc2 = 0x9274;
    const GLubyte blocks[] = {
#include "x11/data/es1_etc1_blocks.def"
    };
    std::array<Pixel, size * size> pictures[2];
    for (const bool isEtc2 : {false, true}) {
        bindTexture();
        const GLenum format = isEtc2 ? compressedRgb8Etc2 : GL_ETC1_RGB8_OES;
        ES(glCompressedTexImage2D)(GL_TEXTURE_2D, 0, format, 8, 8, 0, sizeof blocks, blocks);
        drawImage(8, 8);
        ES(glReadPixels)(0, 0, size, size, GL_RGBA, GL_UNSIGNED_BYTE, pictures[isEtc2].data());
    }
    EXPECT_EQ(pictures[0], pictures[1]);
    ES(glCompressedTexImage2D)(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 8, 8, 0, 31, blocks);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
}

TEST_F(Gles1Textures, TakesTheFormatsOfEsAlone) {
    const GLubyte bytes[4] = {0, 255, 0, 255};
    const GLushort word = 0x07E0;
    const std::tuple<GLint, GLenum, GLenum, const void *, Pixel, GLint> cases[] = {
#include "x11/data/es1_textures.def"
    };
    for (const auto &[internal, format, type, texel, expected, fault] : cases) {
        SCOPED_TRACE(testing::Message() << std::hex << internal << ' ' << format << ' ' << type);
        bindTexture();
        ES(glTexImage2D)(GL_TEXTURE_2D, 0, internal, 1, 1, 0, format, type, texel);
        EXPECT_EQ(error(), fault);
        if (fault != GL_NO_ERROR) continue;
        drawImage(1, 1);
        EXPECT_EQ(pixel(3, 3), expected);
    }
    bindTexture();
    ES(glTexStorage2DEXT)(GL_TEXTURE_2D, 1, GL_BGRA8_EXT, 1, 1);
    ES(glTexSubImage2D)(GL_TEXTURE_2D, 0, 0, 0, 1, 1, GL_BGRA_EXT, GL_UNSIGNED_BYTE, bytes);
    drawImage(1, 1);
    EXPECT_EQ(pixel(3, 3), green) << "storage";
}

TEST_F(Gles1Textures, ContextsThatShareTexturesShareTheirCrops) {
    const GLuint texture = bindTexture();
    const GLint crop[] = {1, 2, 3, -4};
    ES(glTexParameteriv)(GL_TEXTURE_2D, GL_TEXTURE_CROP_RECT_OES, crop);
    const auto read = [&] {
        std::array<GLint, 4> numbers = {9, 9, 9, 9};
        ES(glGetTexParameteriv)(GL_TEXTURE_2D, GL_TEXTURE_CROP_RECT_OES, numbers.data());
        return numbers;
    };
    start("", false, current());
    ES(glBindTexture)(GL_TEXTURE_2D, texture);
    EXPECT_EQ(read(), std::to_array(crop));
    ES(glDeleteTextures)(1, &texture);
    ES(glBindTexture)(GL_TEXTURE_2D, texture);
    EXPECT_EQ(read(), (std::array<GLint, 4>{})) << "the name is that of another texture now";
    // A share context of another back end is ignored.
    int foreign = 0;
    ASSERT_NE(start("", false, &foreign), nullptr);
}
