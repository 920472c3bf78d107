// What a context keeps of vertex arrays and of the buffers that draws read. Used on the context's thread.
#pragma once

#include "vertices/stream_buffer.h"
#include "vertices/vertex_array_state.h"

#include <unordered_map>
#include <vector>

class Vertices {
public:
    // Makes the object that stands for object 0 and binds it.
    explicit Vertices(GLint major);

    // Object 0 takes arrays and index lists in the application's memory. So do the objects of
    // OES_vertex_array_object; those of ES 3 do not.
    [[nodiscard]] bool takesClientMemory() const { return m_major < 3 || bound == &objectZero; }

    // Constant after construction.
    GLuint maxAttribs = 0;
    GLuint defaultObject = 0; // stands for object 0, which a core context lacks; the host's name

    GLuint arrayBuffer = 0; // the host's name
    VertexArrayState objectZero;
    std::unordered_map<GLuint, VertexArrayState> objects; // the others
    VertexArrayState *bound = &objectZero;
    StreamBuffer stream{GL_ARRAY_BUFFER};
    StreamBuffer indexStream{GL_ELEMENT_ARRAY_BUFFER};
    std::vector<std::byte> readBackIndices; // keeps its memory from draw to draw

private:
    const GLint m_major;
};
