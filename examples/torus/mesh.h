// The torus as triangles.
#pragma once

#include <GLES2/gl2.h>

#include <array>
#include <vector>

struct Vertex {
    std::array<GLfloat, 3> position;
    std::array<GLfloat, 3> normal;
    std::array<GLfloat, 2> textureCoordinate;
};

struct Mesh {
    std::vector<Vertex> vertices;
    std::vector<GLushort> indices; // three per triangle, counter-clockwise from outside
};

// The axis is z. The texture wraps once in each direction.
[[nodiscard]] Mesh makeTorus(float ringRadius, float tubeRadius, int ringSteps, int tubeSteps);
