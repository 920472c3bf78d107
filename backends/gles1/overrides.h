// The entries that ES 1 means otherwise than the host. Each forwards as it is, as far as it can, where no context of
// this back end is current.
#pragma once

#include "es1_gl.h"

#include <string_view>

// Null for a name that the host serves as it is.
[[nodiscard]] void *findOverride(std::string_view name);

namespace overrides {

// fixed_point.cpp: numbers of 16.16 bits.
void GL_APIENTRY alphaFuncx(GLenum func, GLfixed ref);
void GL_APIENTRY clearColorx(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha);
void GL_APIENTRY color4x(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha);
void GL_APIENTRY lineWidthx(GLfixed width);
void GL_APIENTRY loadMatrixx(const GLfixed *m);
void GL_APIENTRY multMatrixx(const GLfixed *m);
void GL_APIENTRY multiTexCoord4x(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q);
void GL_APIENTRY normal3x(GLfixed nx, GLfixed ny, GLfixed nz);
void GL_APIENTRY pointSizex(GLfixed size);
void GL_APIENTRY polygonOffsetx(GLfixed factor, GLfixed units);
void GL_APIENTRY rotatex(GLfixed angle, GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY sampleCoveragex(GLclampx value, GLboolean invert);
void GL_APIENTRY scalex(GLfixed x, GLfixed y, GLfixed z);
void GL_APIENTRY translatex(GLfixed x, GLfixed y, GLfixed z);

// fixed_parameters.cpp: the same, named by an enumerant.
void GL_APIENTRY fogx(GLenum pname, GLfixed param);
void GL_APIENTRY fogxv(GLenum pname, const GLfixed *param);
void GL_APIENTRY lightx(GLenum light, GLenum pname, GLfixed param);
void GL_APIENTRY lightxv(GLenum light, GLenum pname, const GLfixed *params);
void GL_APIENTRY getLightxv(GLenum light, GLenum pname, GLfixed *params);
void GL_APIENTRY lightModelx(GLenum pname, GLfixed param);
void GL_APIENTRY lightModelxv(GLenum pname, const GLfixed *param);
void GL_APIENTRY materialx(GLenum face, GLenum pname, GLfixed param);
void GL_APIENTRY materialxv(GLenum face, GLenum pname, const GLfixed *param);
void GL_APIENTRY getMaterialxv(GLenum face, GLenum pname, GLfixed *params);
void GL_APIENTRY pointParameterx(GLenum pname, GLfixed param);
void GL_APIENTRY pointParameterxv(GLenum pname, const GLfixed *params);
void GL_APIENTRY texEnvx(GLenum target, GLenum pname, GLfixed param);
void GL_APIENTRY texEnvxv(GLenum target, GLenum pname, const GLfixed *params);
void GL_APIENTRY getTexEnvxv(GLenum target, GLenum pname, GLfixed *params);
void GL_APIENTRY texParameterx(GLenum target, GLenum pname, GLfixed param);
void GL_APIENTRY texParameterxv(GLenum target, GLenum pname, const GLfixed *params);
void GL_APIENTRY getTexParameterxv(GLenum target, GLenum pname, GLfixed *params);
void GL_APIENTRY texGenxOES(GLenum coord, GLenum pname, GLfixed param);
void GL_APIENTRY texGenxvOES(GLenum coord, GLenum pname, const GLfixed *params);
void GL_APIENTRY getTexGenxvOES(GLenum coord, GLenum pname, GLfixed *params);

// projections.cpp: the host takes these in double precision.
void GL_APIENTRY clearDepthf(GLfloat d);
void GL_APIENTRY clearDepthx(GLfixed depth);
void GL_APIENTRY depthRangef(GLfloat n, GLfloat f);
void GL_APIENTRY depthRangex(GLfixed n, GLfixed f);
void GL_APIENTRY frustumf(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f);
void GL_APIENTRY frustumx(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f);
void GL_APIENTRY orthof(GLfloat l, GLfloat r, GLfloat b, GLfloat t, GLfloat n, GLfloat f);
void GL_APIENTRY orthox(GLfixed l, GLfixed r, GLfixed b, GLfixed t, GLfixed n, GLfixed f);
void GL_APIENTRY clipPlanef(GLenum p, const GLfloat *eqn);
void GL_APIENTRY clipPlanex(GLenum plane, const GLfixed *equation);
void GL_APIENTRY getClipPlanef(GLenum plane, GLfloat *equation);
void GL_APIENTRY getClipPlanex(GLenum plane, GLfixed *equation);

// capabilities.cpp: what ES 1 can switch.
void GL_APIENTRY enable(GLenum cap);
void GL_APIENTRY disable(GLenum cap);
GLboolean GL_APIENTRY isEnabled(GLenum cap);

// client_arrays.cpp: arrays of types that the host lacks.
void GL_APIENTRY vertexPointer(GLint size, GLenum type, GLsizei stride, const void *pointer);
void GL_APIENTRY normalPointer(GLenum type, GLsizei stride, const void *pointer);
void GL_APIENTRY colorPointer(GLint size, GLenum type, GLsizei stride, const void *pointer);
void GL_APIENTRY texCoordPointer(GLint size, GLenum type, GLsizei stride, const void *pointer);
void GL_APIENTRY pointSizePointerOES(GLenum type, GLsizei stride, const void *pointer);
void GL_APIENTRY enableClientState(GLenum array);
void GL_APIENTRY disableClientState(GLenum array);
void GL_APIENTRY getPointerv(GLenum pname, void **params);
void GL_APIENTRY deleteBuffers(GLsizei n, const GLuint *buffers);

// array_objects.cpp: each object has its own of those arrays.
void GL_APIENTRY bindVertexArrayOES(GLuint array);
void GL_APIENTRY deleteVertexArraysOES(GLsizei n, const GLuint *arrays);

// drawing.cpp: those arrays are uploaded, and points may have sizes of their own.
void GL_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count);
void GL_APIENTRY drawElements(GLenum mode, GLsizei count, GLenum type, const void *indices);
void GL_APIENTRY multiDrawArraysEXT(GLenum mode, const GLint *first, const GLsizei *count, GLsizei primcount);
void GL_APIENTRY multiDrawElementsEXT(GLenum mode, const GLsizei *count, GLenum type, const void *const *indices,
                                      GLsizei primcount);

// draw_texture.cpp: rectangles in window coordinates.
void GL_APIENTRY drawTexfOES(GLfloat x, GLfloat y, GLfloat z, GLfloat width, GLfloat height);
void GL_APIENTRY drawTexiOES(GLint x, GLint y, GLint z, GLint width, GLint height);
void GL_APIENTRY drawTexsOES(GLshort x, GLshort y, GLshort z, GLshort width, GLshort height);
void GL_APIENTRY drawTexxOES(GLfixed x, GLfixed y, GLfixed z, GLfixed width, GLfixed height);
void GL_APIENTRY drawTexfvOES(const GLfloat *coords);
void GL_APIENTRY drawTexivOES(const GLint *coords);
void GL_APIENTRY drawTexsvOES(const GLshort *coords);
void GL_APIENTRY drawTexxvOES(const GLfixed *coords);

// textures.cpp: formats of ES.
void GL_APIENTRY texImage2D(GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,
                            GLint border, GLenum format, GLenum type, const void *pixels);
void GL_APIENTRY texSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,
                               GLenum format, GLenum type, const void *pixels);
void GL_APIENTRY copyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x, GLint y, GLsizei width,
                                GLsizei height, GLint border);
void GL_APIENTRY pixelStorei(GLenum pname, GLint param);
void *GL_APIENTRY mapBufferOES(GLenum target, GLenum access);

// compressed_textures.cpp: formats that are decoded here.
void GL_APIENTRY compressedTexImage2D(GLenum target, GLint level, GLenum internalformat, GLsizei width, GLsizei height,
                                      GLint border, GLsizei imageSize, const void *data);
void GL_APIENTRY compressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width,
                                         GLsizei height, GLenum format, GLsizei imageSize, const void *data);

// texture_crops.cpp: the rectangle that a texture keeps for drawing.
void GL_APIENTRY texParameterfv(GLenum target, GLenum pname, const GLfloat *params);
void GL_APIENTRY texParameteriv(GLenum target, GLenum pname, const GLint *params);
void GL_APIENTRY getTexParameterfv(GLenum target, GLenum pname, GLfloat *params);
void GL_APIENTRY getTexParameteriv(GLenum target, GLenum pname, GLint *params);
void GL_APIENTRY deleteTextures(GLsizei n, const GLuint *textures);

// texture_generation.cpp: all coordinates at once.
void GL_APIENTRY texGenfOES(GLenum coord, GLenum pname, GLfloat param);
void GL_APIENTRY texGenfvOES(GLenum coord, GLenum pname, const GLfloat *params);
void GL_APIENTRY texGeniOES(GLenum coord, GLenum pname, GLint param);
void GL_APIENTRY texGenivOES(GLenum coord, GLenum pname, const GLint *params);
void GL_APIENTRY getTexGenfvOES(GLenum coord, GLenum pname, GLfloat *params);
void GL_APIENTRY getTexGenivOES(GLenum coord, GLenum pname, GLint *params);

// queries.cpp: an ES context tells what it is, not what carries it.
const GLubyte *GL_APIENTRY getString(GLenum name);
GLenum GL_APIENTRY getError();
void GL_APIENTRY getBooleanv(GLenum pname, GLboolean *data);
void GL_APIENTRY getFloatv(GLenum pname, GLfloat *data);
void GL_APIENTRY getIntegerv(GLenum pname, GLint *data);
void GL_APIENTRY getFixedv(GLenum pname, GLfixed *params);

// query_matrix.cpp: mantissas and exponents.
GLbitfield GL_APIENTRY queryMatrixxOES(GLfixed *mantissa, GLint *exponent);

} // namespace overrides
