// The types of OpenGL ES, without the prototypes: the entries of those names are reached through their table alone.
#pragma once

#define GL_GLES_PROTOTYPES 0
#include <GLES3/gl32.h>

#include <GLES2/gl2ext.h>

// Only the ES 1 headers have this one.
using GLclampx = khronos_int32_t;
