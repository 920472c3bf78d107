// The matrices of OES_matrix_palette. Hosts lack them; draws transform the vertices by them in software.
#pragma once

#include "es_gl.h"

#include <array>

using Matrix = std::array<GLfloat, 16>; // column-major

// The palette of one context. Used on the context's thread.
struct MatrixPalette {
    static constexpr GLuint matrixCount = 32;
    static constexpr GLint unitCount = 4; // matrices per vertex

    MatrixPalette();

    std::array<Matrix, matrixCount> matrices;
    GLuint current = 0;
    bool isOn = false;
    bool isMode = false; // matrix functions change the palette; the host's mode is then the modelview
};

// The matrix of the application's matrix mode.
[[nodiscard]] Matrix currentMatrix();
[[nodiscard]] Matrix modelview();

// While it lives, the host has another modelview matrix; the application's mode is unchanged.
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
