// Matrices, clip planes and arrays of integers and fixed-point numbers.
#include "pictures/scenes.h"
#include "pictures/shapes.h"

void scenes::clipPlanes() {
    lookAslant();
    const GLfloat planes[][4] = {{1, 0, 0, 0.4f}, {0, -1, 0, 0.5f}, {0.3f, 0.5f, 0.7f, 0.2f}};
    for (GLenum index = 0; index < 3; ++index) {
        gl.clipPlanef(GL_CLIP_PLANE0 + index * 2, planes[index]);
        gl.enable(GL_CLIP_PLANE0 + index * 2);
    }
    gl.enable(GL_LIGHTING);
    gl.enable(GL_LIGHT0);
    drawSphere();
}

void scenes::matrixStacks() {
    for (int depth = 0; depth < 12; ++depth) {
        gl.pushMatrix();
        gl.translatef(0.1f, 0.05f, 0);
        gl.rotatef(12, 0, 0, 1);
        gl.scalef(0.9f, 0.9f, 1);
        gl.color4f(static_cast<GLfloat>(depth) / 12, 0.5f, 1 - static_cast<GLfloat>(depth) / 12, 1);
        drawRectangle({-0.8f, -0.8f}, {0.8f, 0.8f});
    }
    for (int depth = 0; depth < 12; ++depth)
        gl.popMatrix();
    gl.color4f(1, 1, 1, 1);
    const GLfloat shear[] = {1, 0, 0, 0, 0.5f, 1, 0, 0, 0, 0, 1, 0, -0.3f, 0, 0, 1};
    gl.multMatrixf(shear);
    drawRectangle({-0.2f, -0.2f}, {0.2f, 0.2f});
}

void scenes::fixedPointMatrices() {
    constexpr GLfixed one = 1 << 16;
    const GLfixed half[] = {one / 2, 0, 0, 0, 0, one / 2, 0, 0, 0, 0, one, 0, one / 4, 0, 0, one};
    gl.matrixMode(GL_PROJECTION);
    gl.orthox(-one, 2 * one, -one, one * 3 / 2, -one, one);
    gl.matrixMode(GL_MODELVIEW);
    gl.loadMatrixx(half);
    gl.rotatex(30 * one, 0, 0, one);
    gl.translatex(one / 8, -one / 3, 0);
    gl.color4x(one / 3, one, one / 5, one);
    drawRectangle({-1, -1}, {1, 1});
}

void scenes::byteArrays() {
    const GLbyte positions[] = {-1, -1, 1, -1, 0, 1};
    const GLubyte colors[] = {255, 128, 0, 255, 0, 200, 100, 255, 30, 60, 250, 255};
    gl.vertexPointer(2, GL_BYTE, 0, positions);
    gl.colorPointer(4, GL_UNSIGNED_BYTE, 0, colors);
    gl.enableClientState(GL_VERTEX_ARRAY);
    gl.enableClientState(GL_COLOR_ARRAY);
    gl.scalef(0.8f, 0.8f, 1);
    gl.drawArrays(GL_TRIANGLES, 0, 3);
    const GLfixed fixed[] = {-1 << 16, 1 << 15, 1 << 16, 1 << 15, 0, -1 << 16};
    const GLushort indices[] = {2, 1, 0};
    gl.vertexPointer(2, GL_FIXED, 0, fixed);
    gl.scalef(0.5f, 0.5f, 1);
    gl.drawElements(GL_TRIANGLES, 3, GL_UNSIGNED_SHORT, indices);
}
