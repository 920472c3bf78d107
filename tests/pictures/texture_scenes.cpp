// Textures: environments, combiners, matrices, formats.
#include "pictures/scenes.h"
#include "pictures/shapes.h"
#include "pictures/textures.h"

#include <initializer_list>
#include <vector>

namespace {

void combine(GLenum rgb, GLenum source, GLenum operand) {
    gl.texEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_COMBINE);
    gl.texEnvi(GL_TEXTURE_ENV, GL_COMBINE_RGB, static_cast<GLint>(rgb));
    gl.texEnvi(GL_TEXTURE_ENV, GL_SRC1_RGB, static_cast<GLint>(source));
    gl.texEnvi(GL_TEXTURE_ENV, GL_OPERAND0_RGB, static_cast<GLint>(operand));
}

} // namespace

void scenes::texEnvironments() {
    gl.enable(GL_TEXTURE_2D);
    gl.color4f(0.9f, 0.5f, 0.2f, 0.7f);
    const GLfloat color[] = {0.1f, 0.3f, 0.9f, 0.5f};
    gl.texEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, color);
    int cell = 0;
    for (const GLenum format : {GL_RGB, GL_RGBA, GL_ALPHA, GL_LUMINANCE, GL_LUMINANCE_ALPHA}) {
        bindPattern(format);
        for (const GLenum mode : {GL_MODULATE, GL_REPLACE, GL_DECAL, GL_BLEND, GL_ADD}) {
            gl.texEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, static_cast<GLint>(mode));
            // ES does not define GL_DECAL for these formats.
            const bool isOpen = mode == GL_DECAL && format != GL_RGB && format != GL_RGBA;
            if (!isOpen) drawCell(cell, 5, 5);
            ++cell;
        }
    }
}

void scenes::combiners() {
    gl.enable(GL_TEXTURE_2D);
    bindPattern(GL_RGBA);
    gl.color4f(0.6f, 0.8f, 0.3f, 0.6f);
    const GLfloat color[] = {0.7f, 0.2f, 0.5f, 0.4f};
    gl.texEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, color);
    int cell = 0;
    for (const GLenum rgb :
         {GL_REPLACE, GL_MODULATE, GL_ADD, GL_ADD_SIGNED, GL_INTERPOLATE, GL_SUBTRACT, GL_DOT3_RGB, GL_DOT3_RGBA}) {
        combine(rgb, GL_PRIMARY_COLOR, GL_SRC_COLOR);
        gl.texEnvf(GL_TEXTURE_ENV, GL_RGB_SCALE, 1);
        drawCell(cell++, 4, 4);
        combine(rgb, GL_CONSTANT, GL_ONE_MINUS_SRC_COLOR);
        gl.texEnvi(GL_TEXTURE_ENV, GL_OPERAND2_RGB, GL_ONE_MINUS_SRC_ALPHA);
        gl.texEnvf(GL_TEXTURE_ENV, GL_RGB_SCALE, rgb == GL_DOT3_RGB ? 4 : 2);
        gl.texEnvi(GL_TEXTURE_ENV, GL_COMBINE_ALPHA, GL_SUBTRACT);
        drawCell(cell++, 4, 4);
    }
}

void scenes::multitexture() {
    for (const GLenum unit : {GL_TEXTURE0, GL_TEXTURE1}) {
        gl.activeTexture(unit);
        gl.enable(GL_TEXTURE_2D);
        bindPattern(unit == GL_TEXTURE0 ? GL_RGB : GL_RGBA);
    }
    for (int cell = 0; cell < 4; ++cell) {
        const GLenum modes[] = {GL_MODULATE, GL_DECAL, GL_ADD, GL_BLEND};
        gl.texEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, static_cast<GLint>(modes[cell]));
        drawCell(cell, 2, 2);
    }
    // Without an array the current texture coordinates are used.
    gl.multiTexCoord4f(GL_TEXTURE1, 0.3f, 0.6f, 0, 1);
    const GLfloat corners[] = {-0.4f, -0.4f, 0.4f, -0.4f, -0.4f, 0.4f, 0.4f, 0.4f};
    gl.texCoordPointer(2, GL_FLOAT, 0, corners);
    gl.enableClientState(GL_TEXTURE_COORD_ARRAY);
    gl.vertexPointer(2, GL_FLOAT, 0, corners);
    gl.drawArrays(GL_TRIANGLE_STRIP, 0, 4);
}

void scenes::textureMatrices() {
    for (const GLenum unit : {GL_TEXTURE0, GL_TEXTURE1}) {
        gl.activeTexture(unit);
        gl.enable(GL_TEXTURE_2D);
        bindPattern(GL_RGB);
        gl.matrixMode(GL_TEXTURE);
        gl.scalef(2, 3, 1);
        gl.rotatef(unit == GL_TEXTURE0 ? 30 : -60, 0, 0, 1);
    }
    drawRectangle({-0.9f, -0.9f}, {0.9f, 0.9f});
}

void scenes::palettedTextures() {
    gl.enable(GL_TEXTURE_2D);
    constexpr GLsizei paletteEntries[] = {16, 16, 16, 16, 16, 256, 256, 256, 256, 256};
    constexpr GLsizei entrySizes[] = {3, 4, 2, 2, 2, 3, 4, 2, 2, 2};
    for (GLenum index = 0; index < 10; ++index) {
        std::vector<GLubyte> data;
        for (GLsizei byte = 0; byte < paletteEntries[index] * entrySizes[index]; ++byte)
            data.push_back(static_cast<GLubyte>(byte * 37 + 11));
        for (int texel = 0; texel < (paletteEntries[index] == 16 ? 128 : 256); ++texel)
            data.push_back(static_cast<GLubyte>(texel * 29));
        bindNewTexture();
        gl.compressedTexImage2D(GL_TEXTURE_2D, 0, GL_PALETTE4_RGB8_OES + index, 16, 16, 0,
                                static_cast<GLsizei>(data.size()), data.data());
        drawCell(static_cast<int>(index), 4, 3);
    }
}

void scenes::etc1Texture() {
    gl.enable(GL_TEXTURE_2D);
    std::vector<GLubyte> blocks;
    // Medium base colours, so that every modified colour is in range.
    for (int byte = 0; byte < 8 * 16; ++byte)
        blocks.push_back(static_cast<GLubyte>(byte % 8 < 3 ? 64 + byte * 53 % 128 : byte * 97 + 31));
    bindNewTexture();
    gl.compressedTexImage2D(GL_TEXTURE_2D, 0, GL_ETC1_RGB8_OES, 16, 16, 0, static_cast<GLsizei>(blocks.size()),
                            blocks.data());
    drawRectangle({-0.9f, -0.9f}, {0.9f, 0.9f});
}

void scenes::textureFormats() {
    gl.enable(GL_TEXTURE_2D);
    constexpr GLenum formats[][2] = {{GL_RGB, GL_UNSIGNED_SHORT_5_6_5},    {GL_RGBA, GL_UNSIGNED_SHORT_4_4_4_4},
                                     {GL_RGBA, GL_UNSIGNED_SHORT_5_5_5_1}, {GL_RGB, GL_UNSIGNED_BYTE},
                                     {GL_BGRA_EXT, GL_UNSIGNED_BYTE},      {GL_LUMINANCE, GL_UNSIGNED_BYTE}};
    std::vector<GLubyte> bytes;
    for (int byte = 0; byte < 5 * 8 * 4; ++byte)
        bytes.push_back(static_cast<GLubyte>(byte * 59 + 7));
    gl.pixelStorei(GL_UNPACK_ALIGNMENT, 2);
    for (int cell = 0; cell < 6; ++cell) {
        bindNewTexture();
        gl.texImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(formats[cell][0]), 4, 8, 0, formats[cell][0],
                      formats[cell][1], bytes.data());
        drawCell(cell, 3, 2);
    }
}

void scenes::mipmaps() {
    gl.enable(GL_TEXTURE_2D);
    int cell = 0;
    for (const GLenum filter :
         {GL_NEAREST_MIPMAP_NEAREST, GL_LINEAR_MIPMAP_NEAREST, GL_NEAREST_MIPMAP_LINEAR, GL_LINEAR_MIPMAP_LINEAR}) {
        bindNewTexture();
        gl.texParameteri(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, GL_TRUE);
        loadPattern(GL_RGBA);
        gl.texParameterf(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, static_cast<GLfloat>(filter));
        drawCell(cell++, 4, 2);
    }
    for (const GLfloat bias : {-1.f, 0.5f, 1.f, 2.f}) {
        gl.texEnvf(GL_TEXTURE_FILTER_CONTROL_EXT, GL_TEXTURE_LOD_BIAS_EXT, bias);
        drawCell(cell++, 4, 2);
    }
}

void scenes::reflectionMap() {
    lookAslant();
    bindNewTexture(GL_TEXTURE_CUBE_MAP_OES);
    for (GLenum face = 0; face < 6; ++face) {
        const GLubyte texel[] = {static_cast<GLubyte>(face * 40), static_cast<GLubyte>(255 - face * 30),
                                 static_cast<GLubyte>(face * face * 9), 255};
        gl.texImage2D(GL_TEXTURE_CUBE_MAP_POSITIVE_X_OES + face, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, texel);
    }
    gl.enable(GL_TEXTURE_CUBE_MAP_OES);
    gl.enable(GL_TEXTURE_GEN_STR_OES);
    gl.texGeni(GL_TEXTURE_GEN_STR_OES, GL_TEXTURE_GEN_MODE_OES, GL_REFLECTION_MAP_OES);
    drawSphere();
}

void scenes::drawnTextures() {
    gl.enable(GL_TEXTURE_2D);
    bindPattern(GL_RGBA);
    gl.color4f(1, 0.9f, 0.5f, 1);
    drawCell(0, 20, 20); // Mesa draws textures in the colour of the last draw
    const GLint crops[][4] = {{0, 0, 16, 16}, {4, 2, 8, 8}, {16, 0, -16, 16}, {0, 16, 16, -16}};
    for (int index = 0; index < 4; ++index) {
        gl.texParameteriv(GL_TEXTURE_2D, GL_TEXTURE_CROP_RECT_OES, crops[index]);
        const auto x = static_cast<GLfloat>(index % 2), y = static_cast<GLfloat>(index / 2);
        gl.drawTexf(x * 60.5f + 3.1f, y * 61 + 2.25f, 0.5f, 55, 50.7f);
    }
}

void scenes::copiedTextures() {
    lookAslant();
    gl.color4f(0.2f, 0.9f, 0.4f, 0.5f);
    drawRectangle({-0.7f, -0.7f}, {0.3f, 0.6f});
    gl.loadIdentity();
    gl.enable(GL_TEXTURE_2D);
    gl.color4f(1, 1, 1, 1);
    int cell = 0;
    std::vector<GLuint> copies;
    for (const GLenum format : {GL_RGBA, GL_RGB, GL_ALPHA, GL_LUMINANCE, GL_LUMINANCE_ALPHA}) {
        copies.push_back(bindNewTexture());
        gl.copyTexImage2D(GL_TEXTURE_2D, 0, format, 16, 16, 64, 64, 0);
    }
    for (const GLuint copy : copies) {
        gl.bindTexture(GL_TEXTURE_2D, copy);
        drawCell(cell++, 3, 2);
    }
}
