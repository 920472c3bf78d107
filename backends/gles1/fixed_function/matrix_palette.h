// The matrices of OES_matrix_palette. Hosts have none; the draws move the vertices by them themselves.
#pragma once

#include "es_gl.h"

#include <array>

using Matrix = std::array<GLfloat, 16>; // column by column

// Those of one context. Used on the context's thread.
struct MatrixPalette {
    static constexpr GLuint matrixCount = 32;
    static constexpr GLint unitCount = 4; // matrices that move one vertex

    MatrixPalette();

    std::array<Matrix, matrixCount> matrices;
    GLuint current = 0;
    bool isOn = false;
    bool isMode = false; // what changes a matrix changes the current one here; the host's mode is that of the modelview
};

// The matrix that the application's mode names.
[[nodiscard]] Matrix currentMatrix();
[[nodiscard]] Matrix modelview();

// While it lives, the host's modelview is another one; the application's mode stays.
class OtherModelview {
public:
    explicit OtherModelview(const Matrix &matrix);
    ~OtherModelview();
    OtherModelview(const OtherModelview &) = delete;
    OtherModelview &operator=(const OtherModelview &) = delete;

private:
    const Matrix m_before;
    GLint m_mode = GL_MODELVIEW;
};
