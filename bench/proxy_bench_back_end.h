// A fake back end, in a file of its own so that the compiler cannot inline its functions.
#pragma once

#include "foundation/gl_types.h"

void backEndFlush();
void backEndDrawRangeElements(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type, const void *indices);
