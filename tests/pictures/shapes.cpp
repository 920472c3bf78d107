#include "pictures/shapes.h"

#include <cmath>
#include <initializer_list>
#include <vector>

void drawRectangle(Corner from, Corner to, GLfloat z) {
    const GLfloat positions[] = {from.x, from.y, z, to.x, from.y, z, from.x, to.y, z, to.x, to.y, z};
    const GLfloat coordinates[] = {0, 0, 1, 0, 0, 1, 1, 1};
    gl.vertexPointer(3, GL_FLOAT, 0, positions);
    gl.enableClientState(GL_VERTEX_ARRAY);
    for (const GLenum unit : {GL_TEXTURE1, GL_TEXTURE0}) {
        gl.clientActiveTexture(unit);
        gl.texCoordPointer(2, GL_FLOAT, 0, coordinates);
        gl.enableClientState(GL_TEXTURE_COORD_ARRAY);
    }
    gl.drawArrays(GL_TRIANGLE_STRIP, 0, 4);
    // Disabled, since the arrays end here and other shapes have more vertices.
    for (const GLenum unit : {GL_TEXTURE1, GL_TEXTURE0}) {
        gl.clientActiveTexture(unit);
        gl.disableClientState(GL_TEXTURE_COORD_ARRAY);
    }
}

void drawCell(int index, int columns, int rows) {
    const GLfloat width = 2.f / static_cast<GLfloat>(columns), height = 2.f / static_cast<GLfloat>(rows);
    const GLfloat x = -1 + width * static_cast<GLfloat>(index % columns);
    const GLfloat y = -1 + height * static_cast<GLfloat>(index / columns);
    drawRectangle({x + width * 0.05f, y + height * 0.05f}, {x + width * 0.95f, y + height * 0.95f});
}

void drawSphere() {
    constexpr int rings = 12, sectors = 16;
    std::vector<GLfloat> positions, coordinates;
    std::vector<GLubyte> indices;
    for (int ring = 0; ring <= rings; ++ring) {
        for (int sector = 0; sector <= sectors; ++sector) {
            const double latitude = M_PI * ring / rings, longitude = 2 * M_PI * sector / sectors;
            positions.push_back(static_cast<GLfloat>(std::sin(latitude) * std::cos(longitude)));
            positions.push_back(static_cast<GLfloat>(-std::cos(latitude)));
            positions.push_back(static_cast<GLfloat>(-std::sin(latitude) * std::sin(longitude)));
            coordinates.push_back(static_cast<GLfloat>(sector) / sectors);
            coordinates.push_back(static_cast<GLfloat>(ring) / rings);
            const int at = ring * (sectors + 1) + sector;
            if (ring == rings || sector == sectors) continue;
            for (const int index : {at, at + 1, at + sectors + 1, at + 1, at + sectors + 2, at + sectors + 1})
                indices.push_back(static_cast<GLubyte>(index));
        }
    }
    gl.vertexPointer(3, GL_FLOAT, 0, positions.data());
    gl.normalPointer(GL_FLOAT, 0, positions.data());
    gl.texCoordPointer(2, GL_FLOAT, 0, coordinates.data());
    for (const GLenum array : {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_TEXTURE_COORD_ARRAY})
        gl.enableClientState(array);
    gl.enable(GL_CULL_FACE);
    gl.drawElements(GL_TRIANGLES, static_cast<GLsizei>(indices.size()), GL_UNSIGNED_BYTE, indices.data());
    gl.disable(GL_CULL_FACE);
    for (const GLenum array : {GL_NORMAL_ARRAY, GL_TEXTURE_COORD_ARRAY})
        gl.disableClientState(array);
}

void drawCorridor() {
    gl.matrixMode(GL_PROJECTION);
    gl.loadIdentity();
    gl.frustumf(-1, 1, -1, 1, 1, 20);
    gl.matrixMode(GL_MODELVIEW);
    const GLfloat positions[] = {-1, -1, -1, 1, -1, -1, -1, -1, -19, 1, -1, -19,
                                 -1, 1,  -1, 1, 1,  -1, -1, 1,  -19, 1, 1,  -19};
    const GLubyte indices[] = {0, 1, 2, 3, 3, 1, 1, 5, 3, 7, 7, 5, 5, 4, 7, 6, 6, 4, 4, 0, 6, 2};
    gl.vertexPointer(3, GL_FLOAT, 0, positions);
    gl.enableClientState(GL_VERTEX_ARRAY);
    gl.drawElements(GL_TRIANGLE_STRIP, sizeof indices, GL_UNSIGNED_BYTE, indices);
}

void lookAslant() {
    gl.matrixMode(GL_PROJECTION);
    gl.loadIdentity();
    gl.orthof(-1.2f, 1.2f, -1.2f, 1.2f, -4, 4);
    gl.matrixMode(GL_MODELVIEW);
    gl.loadIdentity();
    gl.rotatef(25, 1, 0.5f, 0);
}
