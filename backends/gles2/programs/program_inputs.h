// What a program reads of the vertices.
#pragma once

#include "es_gl.h"

#include <cstdint>

struct ProgramInputs {
    uint32_t attribs = ~0u;    // one bit each; arrays that the program does not read may point anywhere
    bool readsVertexId = true; // gl_VertexID
};

// Of a linked program; everything where the host does not tell. With the host context current.
[[nodiscard]] ProgramInputs askProgramInputs(GLuint program);
