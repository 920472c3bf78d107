#include "x11/gles1_fixture.h"

namespace {

// The numbers converted to the type.
std::vector<char> inType(GLenum type, const std::vector<GLfloat> &numbers) {
    std::vector<char> bytes;
    const auto append = [&](auto number) {
        const auto *const first = reinterpret_cast<const char *>(&number);
        bytes.insert(bytes.end(), first, first + sizeof number);
    };
    for (const GLfloat number : numbers) {
        if (type == GL_BYTE) append(static_cast<GLbyte>(number));
        if (type == GL_SHORT) append(static_cast<GLshort>(number));
        if (type == GL_FIXED) append(static_cast<GLfixed>(number * 65536));
        if (type == GL_FLOAT) append(number);
    }
    return bytes;
}

class Gles1Drawing : public Gles1 {
protected:
    Gles1Drawing() { start(); }

    GLuint buffer(GLenum target, const void *data, size_t length) {
        GLuint name = 0;
        ES(glGenBuffers)(1, &name);
        ES(glBindBuffer)(target, name);
        ES(glBufferData)(target, static_cast<GLsizeiptr>(length), data, GL_STATIC_DRAW);
        return name;
    }
    void expectPixels(const std::vector<std::tuple<GLint, GLint, Pixel>> &rows) {
        for (const auto &[x, y, color] : rows)
            EXPECT_EQ(pixel(x, y), color) << x << ' ' << y;
    }
    void expectRightHalf(Pixel color) { expectPixels({{9, 3, color}, {15, 15, color}, {7, 3, black}}); }
    // The lower row is red and green, the upper one blue and white.
    void bindColors() {
        bindTexture();
        const Pixel texels[] = {red, green, blue, white};
        ES(glTexImage2D)(GL_TEXTURE_2D, 0, GL_RGBA, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels);
    }
    void drawWholeQuad() {
        static constexpr GLfloat corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
        clear();
        ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
        ES(glVertexPointer)(2, GL_FLOAT, 0, corners);
        ES(glEnableClientState)(GL_VERTEX_ARRAY);
        ES(glDrawArrays)(GL_TRIANGLE_STRIP, 0, 4);
    }
};

} // namespace

TEST_F(Gles1Drawing, DrawsFromArraysOfEveryTypeWhereverTheyLie) {
    ES(glEnableClientState)(GL_VERTEX_ARRAY);
    ES(glColor4x)(0, 65536, 0, 65536);
    // Two vertices that no draw reads, then the right half. The copies end with the numbers.
    const std::vector<GLfloat> corners = {9, 9, 9, 9, 0, -1, 1, -1, 0, 1, 1, 1};
    const GLushort indices[] = {2, 3, 4, 4, 3, 5};
    for (const GLenum type : {GL_BYTE, GL_SHORT, GL_FIXED, GL_FLOAT}) {
        for (const bool isInBuffer : {false, true}) {
            SCOPED_TRACE(testing::Message() << std::hex << type << isInBuffer);
            const std::vector<char> bytes = inType(type, corners);
            if (isInBuffer) buffer(GL_ARRAY_BUFFER, bytes.data(), bytes.size());
            ES(glVertexPointer)(2, type, 0, isInBuffer ? nullptr : bytes.data());
            ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
            EXPECT_EQ(integer(GL_VERTEX_ARRAY_TYPE), static_cast<GLint>(type));
            EXPECT_EQ(integer(GL_VERTEX_ARRAY_BUFFER_BINDING) != 0, isInBuffer);
            clear();
            ES(glDrawArrays)(GL_TRIANGLE_STRIP, 2, 4);
            expectRightHalf(green);
            if (isInBuffer) buffer(GL_ELEMENT_ARRAY_BUFFER, indices, sizeof indices);
            clear();
            ES(glDrawElements)(GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, isInBuffer ? nullptr : indices);
            ES(glBindBuffer)(GL_ELEMENT_ARRAY_BUFFER, 0);
            expectRightHalf(green);
        }
    }
}

TEST_F(Gles1Drawing, ConvertsColorsNormalsAndTextureCoordinates) {
    const std::vector<char> greens = inType(GL_FIXED, {0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1, 0, 1});
    const std::vector<char> normals = inType(GL_FIXED, {0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1});
    ES(glEnableClientState)(GL_COLOR_ARRAY);
    ES(glColorPointer)(4, GL_FIXED, 0, greens.data());
    drawWholeQuad();
    EXPECT_EQ(pixel(5, 5), green);
    ES(glDisableClientState)(GL_COLOR_ARRAY);

    // Light from the front: black unless the normals point to it.
    const GLfixed whites[] = {65536, 65536, 65536, 65536};
    ES(glNormal3x)(0, 0, -65536);
    ES(glEnableClientState)(GL_NORMAL_ARRAY);
    ES(glNormalPointer)(GL_FIXED, 0, normals.data());
    ES(glEnable)(GL_LIGHTING);
    ES(glEnable)(GL_LIGHT0);
    ES(glMaterialxv)(GL_FRONT_AND_BACK, GL_DIFFUSE, whites);
    drawWholeQuad();
    EXPECT_EQ(pixel(5, 5)[0], 255);
    ES(glDisable)(GL_LIGHTING);

    // Uses the second unit while the first is active.
    ES(glColor4ub)(255, 255, 255, 255);
    ES(glActiveTexture)(GL_TEXTURE1);
    bindColors();
    ES(glActiveTexture)(GL_TEXTURE0);
    for (const GLenum type : {GL_BYTE, GL_FIXED}) {
        const std::vector<char> coordinates = inType(type, {0, 0, 1, 0, 0, 1, 1, 1});
        ES(glClientActiveTexture)(GL_TEXTURE1);
        ES(glEnableClientState)(GL_TEXTURE_COORD_ARRAY);
        ES(glTexCoordPointer)(2, type, 0, coordinates.data());
        ES(glClientActiveTexture)(GL_TEXTURE0);
        drawWholeQuad();
        expectPixels({{1, 1, red}, {14, 1, green}, {1, 14, blue}});
    }
}

TEST_F(Gles1Drawing, EachVertexArrayObjectHasItsOwnArrays) {
    const std::vector<char> right = inType(GL_FIXED, {0, -1, 1, -1, 0, 1, 1, 1});
    GLuint object = 0;
    ES(glGenVertexArraysOES)(1, &object);
    ES(glBindVertexArrayOES)(object);
    const GLuint name = buffer(GL_ARRAY_BUFFER, right.data(), right.size());
    ES(glVertexPointer)(2, GL_FIXED, 0, nullptr);
    ES(glEnableClientState)(GL_VERTEX_ARRAY);
    ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
    ES(glVertexPointer)(2, GL_FIXED, 0, right.data());
    EXPECT_EQ(error(), GL_INVALID_OPERATION) << "client memory in an object";
    ES(glBindVertexArrayOES)(0);
    drawWholeQuad();
    EXPECT_EQ(pixel(1, 1), white);
    ES(glBindVertexArrayOES)(object);
    clear();
    ES(glDrawArrays)(GL_TRIANGLE_STRIP, 0, 4);
    expectRightHalf(white);
    // The array must not be read at an address that was an offset in the buffer.
    ES(glDeleteBuffers)(1, &name);
    ES(glDrawArrays)(GL_TRIANGLE_STRIP, 0, 4);
    ES(glDeleteVertexArraysOES)(1, &object);
    EXPECT_EQ(integer(GL_VERTEX_ARRAY_TYPE), GL_FLOAT);
}

TEST_F(Gles1Drawing, PointsMayHaveSizesOfTheirOwn) {
    const GLfloat centres[] = {-0.5f, -0.5f, 0.5f, 0.5f};
    const GLfixed sizes[] = {2 * 65536, 6 * 65536};
    const GLubyte indices[] = {1, 0};
    ES(glEnableClientState)(GL_VERTEX_ARRAY);
    ES(glVertexPointer)(2, GL_FLOAT, 0, centres);
    ES(glEnableClientState)(GL_POINT_SIZE_ARRAY_OES);
    ES(glPointSizePointerOES)(GL_FIXED, 0, sizes);
    for (const bool isIndexed : {false, true}) {
        clear();
        if (isIndexed) ES(glDrawElements)(GL_POINTS, 2, GL_UNSIGNED_BYTE, indices);
        if (!isIndexed) ES(glDrawArrays)(GL_POINTS, 0, 2);
        expectPixels({{4, 4, white}, {6, 4, black}, {14, 12, white}, {12, 9, white}});
    }
    EXPECT_EQ(integer(GL_POINT_SIZE), 1);
}

TEST_F(Gles1Drawing, DrawsTheCropOfATextureInWindowCoordinates) {
    bindColors();
    const GLint crop[] = {0, 2, 2, -2}; // flipped
    ES(glTexParameteriv)(GL_TEXTURE_2D, GL_TEXTURE_CROP_RECT_OES, crop);
    // All of this state must be ignored by the draw and restored after it.
    ES(glMatrixMode)(GL_TEXTURE);
    ES(glScalex)(3 * 65536, 5 * 65536, 65536);
    ES(glEnable)(GL_LIGHTING);
    ES(glEnable)(GL_CULL_FACE);
    ES(glFrontFace)(GL_CW);
    ES(glViewport)(0, 0, 4, 4);
    clear();
    ES(glDrawTexxOES)(2 * 65536, 4 * 65536, 0, 8 * 65536, 8 * 65536);
    expectPixels({{2, 4, blue}, {2, 11, red}, {9, 11, green}});
    expectPixels({{1, 4, black}, {10, 4, black}, {2, 3, black}, {2, 12, black}});
    GLfixed matrix[16] = {};
    ES(glGetFixedv)(GL_TEXTURE_MATRIX, matrix);
    EXPECT_EQ(matrix[5], 5 * 65536);
    EXPECT_EQ(integer(GL_MATRIX_MODE), GL_TEXTURE);
    EXPECT_TRUE(ES(glIsEnabled)(GL_LIGHTING));
}

TEST_F(Gles1Drawing, DrawsIntoFramebufferObjectsWhoseNamesNobodyGenerated) {
    clear();
    ES(glBindFramebufferOES)(GL_FRAMEBUFFER_OES, 7);
    ES(glBindRenderbufferOES)(GL_RENDERBUFFER_OES, 9);
    ES(glRenderbufferStorageOES)(GL_RENDERBUFFER_OES, GL_RGBA4_OES, size, size);
    ES(glFramebufferRenderbufferOES)(GL_FRAMEBUFFER_OES, GL_COLOR_ATTACHMENT0_OES, GL_RENDERBUFFER_OES, 9);
    ES(glClearColorx)(0, 0, 65536, 65536);
    clear();
    EXPECT_EQ(pixel(3, 3), blue);
    ES(glBindFramebufferOES)(GL_FRAMEBUFFER_OES, 0);
    EXPECT_EQ(pixel(3, 3), black);
}

TEST_F(Gles1Drawing, GeneratesTheCoordinatesOfCubeMaps) {
    bindTexture(GL_TEXTURE_CUBE_MAP_OES);
    for (GLenum face = GL_TEXTURE_CUBE_MAP_POSITIVE_X_OES; face <= GL_TEXTURE_CUBE_MAP_NEGATIVE_Z_OES; ++face) {
        const Pixel texel = face == GL_TEXTURE_CUBE_MAP_POSITIVE_Y_OES ? green : red;
        ES(glTexImage2D)(face, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, texel.data());
    }
    ES(glTexGeniOES)(GL_TEXTURE_GEN_STR_OES, GL_TEXTURE_GEN_MODE_OES, GL_NORMAL_MAP_OES);
    ES(glEnable)(GL_TEXTURE_GEN_STR_OES);
    for (const GLfloat up : {1.0f, -1.0f}) {
        ES(glNormal3f)(0, up, 0);
        drawWholeQuad();
        EXPECT_EQ(pixel(8, 8), (up > 0 ? green : red));
    }
}

TEST_F(Gles1Drawing, TheRenderModeAndTheDebugEntriesSwitchWireframe) {
    const auto set = reinterpret_cast<void (*)(GLuint)>(getExtProcAddress("zvSetContextWireframe"));
    for (const bool isByEntry : {false, true}) {
        for (const uint8_t isWire : {0, 1, 0}) {
            isByEntry ? set(isWire) : setRenderMode(&isWire, 1);
            drawWholeQuad();
            EXPECT_EQ(pixel(3, 8), (isWire ? black : white));
        }
    }
}

// Two matrices with equal weights move the left half by half of the second one's translation; normals rotate with them.
TEST_F(Gles1Drawing, MatricesOfAPaletteMoveVerticesAndNormals) {
    const std::vector<GLfloat> corners = {9, 9, -1, -1, 0, -1, -1, 1, 0, 1},
                               normals = {0, 0, 1, -1, 0, 0, -1, 0, 0, -1, 0, 0, -1, 0, 0};
    const GLubyte matrices[] = {0, 0, 0, 3, 0, 3, 0, 3, 0, 3};
    const std::vector<GLfloat> weights(10, 0.5f);
    const GLushort indices[] = {1, 2, 3, 4};
    const GLfloat front[] = {0, 0, 1, 0};
    const std::vector<char> directions = inType(GL_FIXED, normals);
    ES(glTranslatef)(0, 0, 0.5f); // the palette replaces the modelview
    ES(glMatrixMode)(GL_MATRIX_PALETTE_OES);
    EXPECT_EQ(integer(GL_MATRIX_MODE), GL_MATRIX_PALETTE_OES);
    for (const GLuint index : {0u, 3u}) {
        ES(glCurrentPaletteMatrixOES)(index);
        ES(glLoadPaletteFromModelViewMatrixOES)();
        ES(glTranslatex)(index ? 65536 : 0, 0, 0);
    }
    EXPECT_EQ(integer(GL_CURRENT_PALETTE_MATRIX_OES), 3);
    ES(glPushMatrix)();
    EXPECT_EQ(error(), 0x0503) << "there is no stack";
    ES(glEnable)(GL_MATRIX_PALETTE_OES);
    ES(glLightfv)(GL_LIGHT0, GL_POSITION, front);
    for (const GLenum array : {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_MATRIX_INDEX_ARRAY_OES, GL_WEIGHT_ARRAY_OES})
        ES(glEnableClientState)(array);
    for (const GLenum type : {GL_SHORT, GL_FLOAT, GL_FIXED}) {
        SCOPED_TRACE(type);
        const std::vector<char> places = inType(type, corners),
                                shares = inType(type == GL_SHORT ? GL_FLOAT : type, weights);
        ES(glVertexPointer)(2, type, 0, places.data());
        ES(glNormalPointer)(GL_FIXED, 0, directions.data());
        ES(glMatrixIndexPointerOES)(2, GL_UNSIGNED_BYTE, 0, matrices);
        ES(glWeightPointerOES)(2, type == GL_SHORT ? GLenum(GL_FLOAT) : type, 0, shares.data());
        clear();
        ES(glDrawElements)(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_SHORT, indices);
        expectPixels({{3, 8, black}, {4, 8, white}, {11, 8, white}, {12, 8, black}});
        void *pointer = nullptr;
        ES(glGetPointerv)(GL_VERTEX_ARRAY_POINTER, &pointer);
        EXPECT_EQ(pointer, places.data());
    }
    // The first matrix turns the normals to the light.
    ES(glCurrentPaletteMatrixOES)(0);
    ES(glRotatef)(90, 0, 1, 0);
    ES(glScalef)(0, 0, 0); // singular
    ES(glLoadIdentity)();
    ES(glRotatef)(90, 0, 1, 0);
    ES(glEnable)(GL_LIGHTING);
    ES(glEnable)(GL_LIGHT0);
    const GLubyte first[] = {0, 0, 0, 0, 0};
    const std::vector<GLfloat> whole(5, 1.f), deep = {0, 0, 0, 0, -1, 1, 0, -1, 0, 0, 1, 1, 0, 1, 0};
    ES(glMatrixIndexPointerOES)(1, GL_UNSIGNED_BYTE, 0, first);
    ES(glWeightPointerOES)(1, GL_FLOAT, 0, whole.data());
    ES(glVertexPointer)(3, GL_FLOAT, 0, deep.data());
    clear();
    ES(glDrawArrays)(GL_TRIANGLE_STRIP, 1, 4);
    EXPECT_NEAR(pixel(12, 8)[0], 214, 3) << "0.8 of the light, 0.04 around";
    ES(glDisable)(GL_LIGHTING);
    ES(glDisable)(GL_MATRIX_PALETTE_OES);
    clear();
    ES(glDrawArrays)(GL_TRIANGLE_STRIP, 1, 4);
    EXPECT_EQ(pixel(12, 8), black) << "seen from the edge";
    ES(glCurrentPaletteMatrixOES)(32);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
    ES(glWeightPointerOES)(5, GL_FLOAT, 0, whole.data());
    EXPECT_EQ(error(), GL_INVALID_VALUE);
}
