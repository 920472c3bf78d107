// A fake back end. In a file of its own, so that calls of it are real calls.
#pragma once

#include "foundation/gl_types.h"

void backEndFlush();
void backEndDrawRangeElements(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type, const void *indices);
