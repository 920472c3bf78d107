// The vertex array and buffer state of a context. Used on the context's thread.
#pragma once

#include "common/host_features.h"
#include "vertices/vertex_array_state.h"

#include <unordered_map>

class Vertices {
public:
    // Creates the object that replaces object 0 and binds it.
    // mostAttribs: the device's limit.
    Vertices(GLint major, const HostFeatures &host, GLint mostAttribs);

    // Object 0 accepts arrays and index lists in client memory, and so do the objects of OES_vertex_array_object. Those
    // of ES 3 do not.
    [[nodiscard]] bool takesClientMemory() const { return m_major < 3 || bound == &objectZero; }
    // Whether the host accepts an array of that format.
    [[nodiscard]] bool takesFormat(GLuint index, const VertexFormat &format) const {
        return index < maxAttribs && format.stride >= 0 && format.stride <= m_mostStride && vertexSize(format) > 0;
    }
    // Restores the binding of the application's buffer.
    void restoreArrayBuffer();

    // Constant after construction.
    GLuint maxAttribs = 0;
    GLuint defaultObject = 0; // replaces object 0, which a core context lacks; the host's name

    GLuint arrayBuffer = 0; // the host's name
    VertexArrayState *bound = &objectZero;
    StreamBuffer stream;
    StreamBuffer indexStream;
    VertexArrayState objectZero;
    std::unordered_map<GLuint, VertexArrayState> objects; // the others
    std::vector<std::byte> readBackIndices;               // reused by every draw to save allocations

private:
    const GLint m_major;
    GLsizei m_mostStride;
};

// Raises the error and returns true for an attribute that the current context's device lacks; the host may have more.
[[nodiscard]] bool isBeyondAttribs(GLuint index);
