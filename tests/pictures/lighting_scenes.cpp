// Lights, materials and fog.
#include "pictures/scenes.h"
#include "pictures/shapes.h"

#include <array>
#include <initializer_list>

namespace {

// Lights and materials add up to less than 1, since Mesa's ES does not clamp vertex colours.
using Color = std::array<GLfloat, 4>;

void light(GLenum name, const Color &position, const Color &diffuse, const Color &specular = {0, 0, 0, 1}) {
    gl.enable(name);
    gl.lightfv(name, GL_POSITION, position.data());
    gl.lightfv(name, GL_DIFFUSE, diffuse.data());
    gl.lightfv(name, GL_SPECULAR, specular.data());
}

void material(GLenum property, const Color &color) {
    gl.materialfv(GL_FRONT_AND_BACK, property, color.data());
}

// A floor of many vertices, so that near lights are visible.
void drawFloor() {
    gl.normal3f(0, 0, 1);
    for (int index = 0; index < 256; ++index) {
        const auto x = static_cast<GLfloat>(index % 16) / 8 - 1, y = static_cast<GLfloat>(index / 16) / 8 - 1;
        drawRectangle({x, y}, {x + 0.125f, y + 0.125f});
    }
}

} // namespace

void scenes::shadeModels() {
    const GLfloat positions[] = {-0.9f, -0.9f, 0.8f, -0.7f, -0.2f, 0.9f};
    const GLfloat colors[] = {1, 0, 0, 1, 0, 1, 0, 1, 0, 0, 1, 1};
    gl.vertexPointer(2, GL_FLOAT, 0, positions);
    gl.colorPointer(4, GL_FLOAT, 0, colors);
    gl.enableClientState(GL_VERTEX_ARRAY);
    gl.enableClientState(GL_COLOR_ARRAY);
    gl.drawArrays(GL_TRIANGLES, 0, 3);
    gl.shadeModel(GL_FLAT);
    gl.rotatef(180, 0, 0, 1);
    gl.drawArrays(GL_TRIANGLES, 0, 3);
}

void scenes::directionalLights() {
    lookAslant();
    gl.enable(GL_LIGHTING);
    light(GL_LIGHT0, {1, 1, 1, 0}, {0.4f, 0.2f, 0.2f, 1}, {0.5f, 0.5f, 0.5f, 1});
    light(GL_LIGHT3, {-1, 0, 0.5f, 0}, {0, 0.3f, 0.5f, 1});
    material(GL_SPECULAR, {0.6f, 0.6f, 0.2f, 1});
    material(GL_AMBIENT, {0.5f, 0.9f, 0.1f, 1});
    material(GL_EMISSION, {0.1f, 0, 0.1f, 1});
    gl.materialf(GL_FRONT_AND_BACK, GL_SHININESS, 20);
    drawSphere();
}

void scenes::positionalLights() {
    gl.enable(GL_LIGHTING);
    light(GL_LIGHT0, {-0.5f, -0.5f, 0.3f, 1}, {0.3f, 0.3f, 0, 1});
    light(GL_LIGHT1, {0.5f, 0.4f, 0.5f, 1}, {0, 0.4f, 0.5f, 1}, {0.5f, 0, 0, 1});
    gl.lightf(GL_LIGHT0, GL_CONSTANT_ATTENUATION, 0.5f);
    gl.lightf(GL_LIGHT0, GL_QUADRATIC_ATTENUATION, 2);
    gl.lightf(GL_LIGHT1, GL_LINEAR_ATTENUATION, 1.5f);
    material(GL_SPECULAR, {1, 1, 1, 1});
    gl.materialf(GL_FRONT_AND_BACK, GL_SHININESS, 8);
    drawFloor();
}

void scenes::spotLights() {
    gl.enable(GL_LIGHTING);
    const Color none = {0, 0, 0, 1};
    gl.lightModelfv(GL_LIGHT_MODEL_AMBIENT, none.data());
    const GLfloat direction[] = {0.3f, 0.3f, -1};
    light(GL_LIGHT0, {-0.4f, -0.4f, 1, 1}, {1, 0.6f, 0.2f, 1});
    gl.lightfv(GL_LIGHT0, GL_SPOT_DIRECTION, direction);
    gl.lightf(GL_LIGHT0, GL_SPOT_CUTOFF, 30);
    gl.lightf(GL_LIGHT0, GL_SPOT_EXPONENT, 5);
    light(GL_LIGHT5, {0.6f, 0.6f, 0.5f, 1}, {0.2f, 0.2f, 1, 1});
    gl.lightf(GL_LIGHT5, GL_SPOT_CUTOFF, 45);
    drawFloor();
}

void scenes::twoSidedLighting() {
    gl.enable(GL_LIGHTING);
    light(GL_LIGHT0, {0, 0, 1, 0}, {1, 1, 1, 1});
    material(GL_DIFFUSE, {0.2f, 0.8f, 0.4f, 1});
    gl.normal3f(0.6f, 0, 0.8f);
    for (int index = 0; index < 4; ++index) {
        gl.lightModelf(GL_LIGHT_MODEL_TWO_SIDE, static_cast<GLfloat>(index / 2));
        gl.frontFace(index % 2 ? GL_CW : GL_CCW);
        drawCell(index, 2, 2);
    }
}

void scenes::colorMaterial() {
    gl.enable(GL_LIGHTING);
    gl.enable(GL_COLOR_MATERIAL);
    gl.enable(GL_NORMALIZE);
    light(GL_LIGHT0, {0.5f, 0.5f, 1, 0}, {0.7f, 0.7f, 0.7f, 1});
    gl.color4f(0.9f, 0.3f, 0.1f, 1);
    drawCell(0, 2, 1);
    gl.color4f(0.1f, 0.4f, 0.8f, 1);
    lookAslant();
    gl.translatef(0.6f, 0, 0);
    gl.scalef(0.5f, 0.8f, 0.5f);
    drawSphere();
}

void scenes::normalLengths() {
    gl.enable(GL_LIGHTING);
    light(GL_LIGHT0, {0, 0, 1, 0}, {0.3f, 0.3f, 0.3f, 1});
    for (int index = 0; index < 3; ++index) {
        gl.loadIdentity();
        gl.translatef(static_cast<GLfloat>(index) * 0.65f - 0.65f, 0, 0);
        gl.scalef(0.3f, 0.3f, 0.3f);
        if (index == 1) gl.enable(GL_RESCALE_NORMAL);
        if (index == 2) gl.enable(GL_NORMALIZE);
        drawSphere();
    }
}

void scenes::linearFog() {
    const Color color = {0.7f, 0.7f, 1, 1};
    gl.enable(GL_FOG);
    gl.fogx(GL_FOG_MODE, GL_LINEAR);
    gl.fogf(GL_FOG_START, 2);
    gl.fogf(GL_FOG_END, 15);
    gl.fogfv(GL_FOG_COLOR, color.data());
    gl.color4f(0.8f, 0.1f, 0, 1);
    drawCorridor();
}

void scenes::exponentialFogs() {
    const Color color = {0.2f, 0.5f, 0.1f, 1};
    gl.enable(GL_FOG);
    gl.enable(GL_SCISSOR_TEST);
    gl.fogfv(GL_FOG_COLOR, color.data());
    for (int index = 0; index < 2; ++index) {
        gl.fogf(GL_FOG_MODE, index ? GLfloat(GL_EXP2) : GLfloat(GL_EXP));
        gl.fogf(GL_FOG_DENSITY, 0.15f);
        gl.scissor(index * pictureSize / 2, 0, pictureSize / 2, pictureSize);
        drawCorridor();
    }
}
