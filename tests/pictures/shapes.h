// Shapes that the scenes draw, from client arrays. Coordinates go from -1 to 1.
#pragma once

#include "pictures/gl.h"

struct Corner {
    GLfloat x, y;
};

// With texture coordinates from 0 to 1.
void drawRectangle(Corner from, Corner to, GLfloat z = 0);
// Draws one of columns x rows equal parts of the picture, with a margin, counted from the lower left.
void drawCell(int index, int columns, int rows);
// The radius is 1. Has normals and texture coordinates.
void drawSphere();
// A corridor that leads away from the eye, under a perspective projection that it sets.
void drawCorridor();

// An orthogonal view of a cube from -1 to 1, from an oblique angle.
void lookAslant();
