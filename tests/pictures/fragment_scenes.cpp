// Per-fragment operations.
#include "pictures/scenes.h"
#include "pictures/shapes.h"

#include <initializer_list>

namespace {

void drawStripes() {
    for (int index = 0; index < 4; ++index) {
        gl.color4f(static_cast<GLfloat>(index) / 3, 0.7f, 0.2f, static_cast<GLfloat>(index + 1) / 5);
        drawCell(index, 4, 1);
    }
}

} // namespace

void scenes::blending() {
    drawStripes();
    gl.enable(GL_BLEND);
    constexpr GLenum functions[][2] = {{GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA},
                                       {GL_ONE, GL_ONE},
                                       {GL_DST_COLOR, GL_ZERO},
                                       {GL_SRC_ALPHA_SATURATE, GL_DST_ALPHA},
                                       {GL_ONE_MINUS_DST_COLOR, GL_SRC_COLOR}};
    gl.color4f(0.3f, 0.2f, 0.9f, 0.4f);
    for (int index = 0; index < 5; ++index) {
        gl.blendFunc(functions[index][0], functions[index][1]);
        drawCell(index, 1, 5);
    }
}

void scenes::alphaTests() {
    gl.enable(GL_ALPHA_TEST);
    int cell = 0;
    for (const GLenum function : {GL_LESS, GL_LEQUAL, GL_EQUAL, GL_GREATER, GL_NOTEQUAL, GL_GEQUAL}) {
        gl.alphaFunc(function, 0.4f);
        for (int alpha = 1; alpha < 4; ++alpha) {
            gl.color4f(0.9f, 0.8f, 0.1f, static_cast<GLfloat>(alpha) / 5);
            drawCell(cell++, 3, 6);
        }
    }
}

void scenes::logicOperations() {
    drawStripes();
    gl.enable(GL_COLOR_LOGIC_OP);
    gl.color4f(0.35f, 0.8f, 0.55f, 1);
    for (GLenum index = 0; index < 16; ++index) {
        gl.logicOp(GL_CLEAR + index);
        drawCell(static_cast<int>(index), 1, 16);
    }
}

void scenes::stencils() {
    gl.enable(GL_STENCIL_TEST);
    gl.stencilFunc(GL_ALWAYS, 1, 0xFF);
    gl.stencilOp(GL_KEEP, GL_KEEP, GL_INCR);
    gl.colorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_TRUE);
    for (int index = 0; index < 4; ++index)
        drawRectangle({-1 + static_cast<GLfloat>(index) * 0.3f, -0.8f}, {0.9f, 0.8f});
    gl.colorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.stencilOp(GL_KEEP, GL_KEEP, GL_KEEP);
    for (GLint level = 1; level < 5; ++level) {
        gl.stencilFunc(GL_EQUAL, level, 0xFF);
        gl.color4f(static_cast<GLfloat>(level) / 4, 0.2f, 0.6f, 1);
        drawRectangle({-1, -0.5f}, {1, 0.5f});
    }
}

void scenes::depths() {
    lookAslant();
    gl.enable(GL_DEPTH_TEST);
    gl.depthRangef(0.2f, 0.7f);
    gl.color4f(0.9f, 0.3f, 0.3f, 1);
    drawSphere();
    gl.color4f(0.3f, 0.3f, 0.9f, 1);
    drawRectangle({-1, -1}, {1, 1}, 0.25f);
    gl.enable(GL_POLYGON_OFFSET_FILL);
    gl.polygonOffset(-2, -40);
    gl.color4f(0.2f, 0.8f, 0.2f, 1);
    drawRectangle({-0.5f, -0.5f}, {0.5f, 0.5f}, 0.25f);
    gl.depthFunc(GL_GREATER);
    gl.color4f(1, 1, 1, 1);
    drawRectangle({0.6f, -0.3f}, {1, 0.3f}, -0.8f);
}
