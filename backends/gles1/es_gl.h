// OpenGL ES 1.1 with its extensions, and the few names that its headers lack.
#pragma once

#define GL_GLEXT_PROTOTYPES
#include <GLES/gl.h>
#include <GLES/glext.h>

using GLchar = char;
using GLDEBUGPROCKHR = void(GL_APIENTRY *)(GLenum source, GLenum type, GLuint id, GLenum severity, GLsizei length,
                                           const GLchar *message, const void *userParam);

#define GL_DEBUG_OUTPUT_KHR 0x92E0
#define GL_DEBUG_OUTPUT_SYNCHRONOUS_KHR 0x8242
#define GL_COMPRESSED_RGBA_S3TC_DXT3 0x83F2
#define GL_COMPRESSED_RGBA_S3TC_DXT5 0x83F3
#define GL_RGB565_OES 0x8D62
// The nearest desktop format that every host has.
#define GL_RGB5 0x8050

extern "C" void GL_APIENTRY glPolygonOffsetClampEXT(GLfloat factor, GLfloat units, GLfloat clamp);
extern "C" void GL_APIENTRY glClipPlanefTWG(GLenum p, const GLfloat *eqn);
extern "C" void GL_APIENTRY glClipPlanexTWG(GLenum p, const GLfixed *eqn);
