// The vertex inputs of a program.
#pragma once

#include "es_gl.h"

#include <cstdint>

struct ProgramInputs {
    uint32_t attribs = ~0u;    // one bit each; arrays that the program does not read may point anywhere
    bool readsVertexId = true; // gl_VertexID
};

// For a linked program; everything if the host does not report it. With the host context current.
[[nodiscard]] ProgramInputs askProgramInputs(GLuint program);
