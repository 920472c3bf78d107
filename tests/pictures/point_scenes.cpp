// Points and lines.
#include "pictures/scenes.h"
#include "pictures/shapes.h"
#include "pictures/textures.h"

#include <array>

namespace {

// On a diagonal, at pixel centres.
constexpr std::array<GLfloat, 10> places = {16.5f, 16.5f, 40.5f, 40.5f, 64.5f, 64.5f, 88.5f, 88.5f, 112.5f, 112.5f};

void countInPixels() {
    gl.matrixMode(GL_PROJECTION);
    gl.orthof(0, pictureSize, 0, pictureSize, -1, 1);
    gl.vertexPointer(2, GL_FLOAT, 0, places.data());
    gl.enableClientState(GL_VERTEX_ARRAY);
}

} // namespace

void scenes::pointSprites() {
    countInPixels();
    gl.enable(GL_TEXTURE_2D);
    gl.enable(GL_POINT_SPRITE_OES);
    bindPattern(GL_RGB);
    gl.texEnvi(GL_POINT_SPRITE_OES, GL_COORD_REPLACE_OES, GL_TRUE);
    for (int index = 0; index < 5; ++index) {
        gl.pointSize(static_cast<GLfloat>(index * 6 + 3));
        gl.drawArrays(GL_POINTS, index, 1);
    }
}

void scenes::pointSizes() {
    countInPixels();
    const GLfixed sizes[] = {1 << 16, 5 << 16, 5 << 16, 17 << 15, 30 << 16};
    gl.pointSizePointer(GL_FIXED, 0, sizes);
    gl.enableClientState(GL_POINT_SIZE_ARRAY_OES);
    gl.drawArrays(GL_POINTS, 0, 5);
    gl.disableClientState(GL_POINT_SIZE_ARRAY_OES);
    gl.color4f(1, 0, 0, 1);
    gl.pointSize(4);
    gl.drawArrays(GL_POINTS, 1, 3);
}

void scenes::attenuatedPoints() {
    gl.matrixMode(GL_PROJECTION);
    gl.frustumf(-1, 1, -1, 1, 1, 20);
    gl.matrixMode(GL_MODELVIEW);
    const GLfloat positions[] = {-0.5f, 0.5f, -1.5f, 0.9f, 0.4f, -2.5f, -1.1f, -1.4f, -4.5f, 3.2f, -3.1f, -9};
    gl.vertexPointer(3, GL_FLOAT, 0, positions);
    gl.enableClientState(GL_VERTEX_ARRAY);
    const GLfloat attenuation[] = {0, 0.1f, 0.05f};
    gl.pointParameterfv(GL_POINT_DISTANCE_ATTENUATION, attenuation);
    gl.pointParameterf(GL_POINT_SIZE_MIN, 3);
    gl.pointParameterf(GL_POINT_SIZE_MAX, 24);
    gl.pointSize(12);
    gl.drawArrays(GL_POINTS, 0, 4);
}

void scenes::lines() {
    countInPixels();
    gl.drawArrays(GL_LINE_STRIP, 0, 4);
    const GLshort corners[] = {10, 100, 50, 110, 30, 70, 60, 64};
    gl.vertexPointer(2, GL_SHORT, 0, corners);
    gl.color4f(0, 1, 1, 1);
    gl.lineWidth(5);
    gl.drawArrays(GL_LINE_LOOP, 0, 4);
    gl.matrixMode(GL_MODELVIEW);
    gl.translatef(50, -50, 0);
    gl.lineWidth(1);
    gl.drawArrays(GL_LINES, 0, 4);
}
