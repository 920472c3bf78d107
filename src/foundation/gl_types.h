// The types and enumerants of OpenGL ES, which the host shares, without the prototypes: functions are called through
// tables and pointers only.
#pragma once

#define GL_GLES_PROTOTYPES 0
#include <GLES3/gl32.h>

#include <GLES2/gl2ext.h>

// Only the ES 1 headers have this one.
using GLclampx = khronos_int32_t;
