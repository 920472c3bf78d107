// The functions of ES 1.1 that the scenes call, from eglGetProcAddress.
#pragma once

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>

#include <GLES/glext.h>

struct Gl {
#define FUNCTION(field, name) decltype(&::name) field;
#include "pictures/functions.def"
#undef FUNCTION
};
extern Gl gl;

constexpr GLsizei pictureSize = 128;
