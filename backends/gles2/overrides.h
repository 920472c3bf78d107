// The entries that ES means otherwise than the host. Each forwards as it is where no context of this back end is
// current.
#pragma once

#include <GLES3/gl32.h>

#include <string_view>

// Null for a name that the host serves as it is.
[[nodiscard]] void *findOverride(std::string_view name);

namespace overrides {

// queries.cpp: an ES context tells what it is, not what carries it.
const GLubyte *GL_APIENTRY getString(GLenum name);
const GLubyte *GL_APIENTRY getStringi(GLenum name, GLuint index);
void GL_APIENTRY getBooleanv(GLenum pname, GLboolean *data);
void GL_APIENTRY getFloatv(GLenum pname, GLfloat *data);
void GL_APIENTRY getInteger64v(GLenum pname, GLint64 *data);
void GL_APIENTRY getIntegerv(GLenum pname, GLint *data);

// shader_sources.cpp: a source without "#version" is in version 100.
void GL_APIENTRY shaderSource(GLuint shader, GLsizei count, const GLchar *const *string, const GLint *length);
void GL_APIENTRY getShaderSource(GLuint shader, GLsizei bufSize, GLsizei *length, GLchar *source);
void GL_APIENTRY getShaderiv(GLuint shader, GLenum pname, GLint *params);

// vertex_arrays.cpp: object 0 can be drawn from.
void GL_APIENTRY bindVertexArray(GLuint array);
void GL_APIENTRY deleteVertexArrays(GLsizei n, const GLuint *arrays);

} // namespace overrides
