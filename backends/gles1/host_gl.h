// What this library itself calls on the host. Any thread.
#pragma once

#include "es1_gl.h"

// HOST_CALL(field, name)   The host's function has the signature of ES.
#define HOST_CALLS(HOST_CALL)                                                                                          \
    HOST_CALL(activeTexture, glActiveTexture)                                                                          \
    HOST_CALL(alphaFunc, glAlphaFunc)                                                                                  \
    HOST_CALL(bindBuffer, glBindBuffer)                                                                                \
    HOST_CALL(bufferData, glBufferData)                                                                                \
    HOST_CALL(bufferSubData, glBufferSubData)                                                                          \
    HOST_CALL(clearColor, glClearColor)                                                                                \
    HOST_CALL(clientActiveTexture, glClientActiveTexture)                                                              \
    HOST_CALL(color4f, glColor4f)                                                                                      \
    HOST_CALL(colorPointer, glColorPointer)                                                                            \
    HOST_CALL(compressedTexImage2D, glCompressedTexImage2D)                                                            \
    HOST_CALL(compressedTexSubImage2D, glCompressedTexSubImage2D)                                                      \
    HOST_CALL(copyTexImage2D, glCopyTexImage2D)                                                                        \
    HOST_CALL(deleteBuffers, glDeleteBuffers)                                                                          \
    HOST_CALL(deleteTextures, glDeleteTextures)                                                                        \
    HOST_CALL(disable, glDisable)                                                                                      \
    HOST_CALL(disableClientState, glDisableClientState)                                                                \
    HOST_CALL(drawArrays, glDrawArrays)                                                                                \
    HOST_CALL(drawElements, glDrawElements)                                                                            \
    HOST_CALL(enable, glEnable)                                                                                        \
    HOST_CALL(enableClientState, glEnableClientState)                                                                  \
    HOST_CALL(fogf, glFogf)                                                                                            \
    HOST_CALL(fogfv, glFogfv)                                                                                          \
    HOST_CALL(genBuffers, glGenBuffers)                                                                                \
    HOST_CALL(getBooleanv, glGetBooleanv)                                                                              \
    HOST_CALL(getBufferParameteriv, glGetBufferParameteriv)                                                            \
    HOST_CALL(getError, glGetError)                                                                                    \
    HOST_CALL(getFloatv, glGetFloatv)                                                                                  \
    HOST_CALL(getIntegerv, glGetIntegerv)                                                                              \
    HOST_CALL(getLightfv, glGetLightfv)                                                                                \
    HOST_CALL(getMaterialfv, glGetMaterialfv)                                                                          \
    HOST_CALL(getPointerv, glGetPointerv)                                                                              \
    HOST_CALL(getString, glGetString)                                                                                  \
    HOST_CALL(getTexEnvfv, glGetTexEnvfv)                                                                              \
    HOST_CALL(getTexParameterfv, glGetTexParameterfv)                                                                  \
    HOST_CALL(getTexParameteriv, glGetTexParameteriv)                                                                  \
    HOST_CALL(isEnabled, glIsEnabled)                                                                                  \
    HOST_CALL(lightModelf, glLightModelf)                                                                              \
    HOST_CALL(lightModelfv, glLightModelfv)                                                                            \
    HOST_CALL(lightf, glLightf)                                                                                        \
    HOST_CALL(lightfv, glLightfv)                                                                                      \
    HOST_CALL(lineWidth, glLineWidth)                                                                                  \
    HOST_CALL(loadMatrixf, glLoadMatrixf)                                                                              \
    HOST_CALL(materialf, glMaterialf)                                                                                  \
    HOST_CALL(materialfv, glMaterialfv)                                                                                \
    HOST_CALL(matrixMode, glMatrixMode)                                                                                \
    HOST_CALL(multMatrixf, glMultMatrixf)                                                                              \
    HOST_CALL(multiTexCoord4f, glMultiTexCoord4f)                                                                      \
    HOST_CALL(normal3f, glNormal3f)                                                                                    \
    HOST_CALL(normalPointer, glNormalPointer)                                                                          \
    HOST_CALL(pixelStorei, glPixelStorei)                                                                              \
    HOST_CALL(pointParameterf, glPointParameterf)                                                                      \
    HOST_CALL(pointParameterfv, glPointParameterfv)                                                                    \
    HOST_CALL(pointSize, glPointSize)                                                                                  \
    HOST_CALL(polygonOffset, glPolygonOffset)                                                                          \
    HOST_CALL(rotatef, glRotatef)                                                                                      \
    HOST_CALL(sampleCoverage, glSampleCoverage)                                                                        \
    HOST_CALL(scalef, glScalef)                                                                                        \
    HOST_CALL(texCoordPointer, glTexCoordPointer)                                                                      \
    HOST_CALL(texEnvf, glTexEnvf)                                                                                      \
    HOST_CALL(texEnvi, glTexEnvi)                                                                                      \
    HOST_CALL(texEnviv, glTexEnviv)                                                                                    \
    HOST_CALL(texEnvfv, glTexEnvfv)                                                                                    \
    HOST_CALL(texImage2D, glTexImage2D)                                                                                \
    HOST_CALL(texParameterf, glTexParameterf)                                                                          \
    HOST_CALL(texParameterfv, glTexParameterfv)                                                                        \
    HOST_CALL(texParameteri, glTexParameteri)                                                                          \
    HOST_CALL(texParameteriv, glTexParameteriv)                                                                        \
    HOST_CALL(texSubImage2D, glTexSubImage2D)                                                                          \
    HOST_CALL(translatef, glTranslatef)                                                                                \
    HOST_CALL(vertexPointer, glVertexPointer)                                                                          \
    HOST_CALL(viewport, glViewport)

// DESKTOP_CALL(field, name, result, parameters)   ES has no such function, or another signature.
#define DESKTOP_CALLS(DESKTOP_CALL)                                                                                    \
    DESKTOP_CALL(begin, glBegin, void, (GLenum mode))                                                                  \
    DESKTOP_CALL(bindVertexArray, glBindVertexArray, void, (GLuint array))                                             \
    DESKTOP_CALL(clearDepth, glClearDepth, void, (double depth))                                                       \
    DESKTOP_CALL(clipPlane, glClipPlane, void, (GLenum plane, const double *equation))                                 \
    DESKTOP_CALL(deleteVertexArrays, glDeleteVertexArrays, void, (GLsizei n, const GLuint *arrays))                    \
    DESKTOP_CALL(depthRange, glDepthRange, void, (double near, double far))                                            \
    DESKTOP_CALL(end, glEnd, void, ())                                                                                 \
    DESKTOP_CALL(frustum, glFrustum, void, (double l, double r, double b, double t, double n, double f))               \
    DESKTOP_CALL(getBufferSubData, glGetBufferSubData, void,                                                           \
                 (GLenum target, GLintptr offset, GLsizeiptr size, void *data))                                        \
    DESKTOP_CALL(getClipPlane, glGetClipPlane, void, (GLenum plane, double *equation))                                 \
    DESKTOP_CALL(getTexGenfv, glGetTexGenfv, void, (GLenum coord, GLenum pname, GLfloat * params))                     \
    DESKTOP_CALL(getTexLevelParameteriv, glGetTexLevelParameteriv, void,                                               \
                 (GLenum target, GLint level, GLenum pname, GLint * params))                                           \
    DESKTOP_CALL(mapBuffer, glMapBuffer, void *, (GLenum target, GLenum access))                                       \
    DESKTOP_CALL(ortho, glOrtho, void, (double l, double r, double b, double t, double n, double f))                   \
    DESKTOP_CALL(polygonMode, glPolygonMode, void, (GLenum face, GLenum mode))                                         \
    DESKTOP_CALL(popAttrib, glPopAttrib, void, ())                                                                     \
    DESKTOP_CALL(pushAttrib, glPushAttrib, void, (GLbitfield groups))                                                  \
    DESKTOP_CALL(texGenf, glTexGenf, void, (GLenum coord, GLenum pname, GLfloat param))                                \
    DESKTOP_CALL(texStorage2D, glTexStorage2D, void,                                                                   \
                 (GLenum target, GLsizei levels, GLenum internalformat, GLsizei width, GLsizei height))                \
    DESKTOP_CALL(vertex2f, glVertex2f, void, (GLfloat x, GLfloat y))

struct HostGl {
#define HOST_CALL(field, name) decltype(&::name) field;
    HOST_CALLS(HOST_CALL)
#undef HOST_CALL
#define DESKTOP_CALL(field, name, result, parameters) result(GL_APIENTRY *field) parameters;
    DESKTOP_CALLS(DESKTOP_CALL)
#undef DESKTOP_CALL
};

// Null when the host has no OpenGL library or the library lacks one of the functions; nothing works then.
[[nodiscard]] const HostGl *findHostGl();

// For code that runs only once findHostGl() has answered: overrides and contexts.
[[nodiscard]] const HostGl &hostGl();
