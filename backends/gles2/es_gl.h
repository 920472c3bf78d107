// OpenGL ES 3.2 with its extensions.
#pragma once

// Makes the headers declare prototypes for extensions too.
#define GL_GLEXT_PROTOTYPES
#include <GLES3/gl32.h>

// gl2ext.h repeats names of gl32.h with the same values.
#include <GLES2/gl2ext.h>

// Functions of desktop OpenGL that extensions of ES have under another name.
extern "C" void GL_APIENTRY glBufferStorage(GLenum target, GLsizeiptr size, const void *data, GLbitfield flags);
extern "C" void *GL_APIENTRY glMapBuffer(GLenum target, GLenum access);
