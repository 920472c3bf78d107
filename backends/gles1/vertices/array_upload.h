// Uploads arrays that the host cannot hold, as floats, for one draw.
#pragma once

#include "vertices/array_objects.h"

#include <optional>
#include <vector>

class EsContext;

// The vertex range of a draw, from first to last; isRead marks the vertices that are read, and empty means all.
struct VerticesRead {
    GLuint first = 0;
    GLuint last = 0;
    std::vector<bool> isRead;
};

// Nothing if a vertex is beyond what can be uploaded. count: above 0. indices: not empty.
[[nodiscard]] std::optional<VerticesRead> verticesInRow(GLint first, GLsizei count);
[[nodiscard]] std::optional<VerticesRead> verticesOf(const std::vector<GLuint> &indices);

// The array's numbers from the first vertex to the last, array.size per vertex. Zeros for a vertex that is not read or
// is past the end of its buffer.
[[nodiscard]] std::vector<GLfloat> readNumbers(const OwnArray &array, const VerticesRead &vertices);

// True when a draw reads an array that is held here.
[[nodiscard]] bool drawsFromOwnArrays(const ArrayObject &object);

// Points the host's enabled arrays that are held here at uploaded data for the draw. False when it is too much.
[[nodiscard]] bool uploadOwnArrays(EsContext &context, const VerticesRead &vertices);
