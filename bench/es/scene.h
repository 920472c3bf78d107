// The objects that the rows of es_bench use, and the functions that they call.
#pragma once

#include "context.h"

#include <GLES3/gl3.h>

#include <array>
#include <vector>

struct Functions {
#define FUNCTION(name) decltype(&::name) name;
#include "functions.def"
#undef FUNCTION
};

struct Vertex {
    std::array<GLfloat, 2> position;
    std::array<GLfloat, 4> color;
    std::array<GLfloat, 2> texCoord;
};

// All vertices are at one point, so that no pixels are rasterised.
constexpr GLsizei vertexCount = 3000;
constexpr GLsizei indexCount = 6000;
constexpr GLsizei smallImage = 16;
constexpr GLsizei largeImage = 512;

struct Scene {
    explicit Scene(Side side);

    // The initial state of every row: the surface, object 0 or its replacement, no buffers, no arrays.
    void reset() const;
    // The three attributes of a vertex, from the bound buffer (base null) or from memory.
    void pointAt(const Vertex *base) const;
    void enableArrays(GLuint count) const;

    Functions gl;
    GLuint programs[2], buffers[2], vertexBuffer, indexBuffer, framebuffers[2], arrays[2];
    GLuint textures[2], smallColor, largeColor, smallGrey, largeGrey;
    GLenum grey; // the one-component format
    GLint scalar, vector, matrix;
    std::vector<Vertex> vertices = std::vector<Vertex>(vertexCount);
    std::vector<GLushort> indices = std::vector<GLushort>(indexCount);
    std::vector<GLubyte> pixels = std::vector<GLubyte>(largeImage * largeImage * 4);

private:
    GLuint makeProgram() const;
    GLuint makeTexture(GLsizei size, GLenum format) const;
    GLuint m_defaultArray = 0;
};
