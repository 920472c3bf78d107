// The types of a program's variables. Pure.
#pragma once

#include "es_gl.h"

struct VariableType {
    GLint columns; // vectors: several in a matrix
    GLint rows;    // components of each; 0 for a sampler or an image
};

[[nodiscard]] VariableType variableType(GLenum type);
