// Brings arrays that the host cannot hold to it, as floats, for one draw.
#pragma once

#include "vertices/array_objects.h"

#include <optional>
#include <vector>

class EsContext;

// The vertices that a draw reads, from first to last; isRead tells which of them, and empty says all.
struct VerticesRead {
    GLuint first = 0;
    GLuint last = 0;
    std::vector<bool> isRead;
};

// Nothing where a vertex lies beyond what can be uploaded. count: above 0. indices: not empty.
[[nodiscard]] std::optional<VerticesRead> verticesInRow(GLint first, GLsizei count);
[[nodiscard]] std::optional<VerticesRead> verticesOf(const std::vector<GLuint> &indices);

// The array's numbers from the first vertex to the last, of each vertex array.size of them. Zeros for a vertex that is
// not read or lies past the end of its buffer.
[[nodiscard]] std::vector<GLfloat> readNumbers(const OwnArray &array, const VerticesRead &vertices);

// True when a draw reads an array that is kept here.
[[nodiscard]] bool drawsFromOwnArrays(const ArrayObject &object);

// Points the host's arrays that are on and kept here at what the draw reads of them. False when it is too much.
[[nodiscard]] bool uploadOwnArrays(EsContext &context, const VerticesRead &vertices);
