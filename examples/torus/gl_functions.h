// The OpenGL ES 2 functions that the program uses, all from eglGetProcAddress.
#pragma once

#include <GLES2/gl2.h>

// GL_FUNCTION(name)
#define GL_FUNCTIONS(GL_FUNCTION)                                                                                      \
    GL_FUNCTION(glActiveTexture)                                                                                       \
    GL_FUNCTION(glAttachShader)                                                                                        \
    GL_FUNCTION(glBindAttribLocation)                                                                                  \
    GL_FUNCTION(glBindBuffer)                                                                                          \
    GL_FUNCTION(glBindTexture)                                                                                         \
    GL_FUNCTION(glBufferData)                                                                                          \
    GL_FUNCTION(glClear)                                                                                               \
    GL_FUNCTION(glClearColor)                                                                                          \
    GL_FUNCTION(glCompileShader)                                                                                       \
    GL_FUNCTION(glCreateProgram)                                                                                       \
    GL_FUNCTION(glCreateShader)                                                                                        \
    GL_FUNCTION(glDeleteBuffers)                                                                                       \
    GL_FUNCTION(glDeleteProgram)                                                                                       \
    GL_FUNCTION(glDeleteShader)                                                                                        \
    GL_FUNCTION(glDeleteTextures)                                                                                      \
    GL_FUNCTION(glDrawElements)                                                                                        \
    GL_FUNCTION(glEnable)                                                                                              \
    GL_FUNCTION(glEnableVertexAttribArray)                                                                             \
    GL_FUNCTION(glGenBuffers)                                                                                          \
    GL_FUNCTION(glGenTextures)                                                                                         \
    GL_FUNCTION(glGenerateMipmap)                                                                                      \
    GL_FUNCTION(glGetError)                                                                                            \
    GL_FUNCTION(glGetProgramInfoLog)                                                                                   \
    GL_FUNCTION(glGetProgramiv)                                                                                        \
    GL_FUNCTION(glGetShaderInfoLog)                                                                                    \
    GL_FUNCTION(glGetShaderiv)                                                                                         \
    GL_FUNCTION(glGetString)                                                                                           \
    GL_FUNCTION(glGetUniformLocation)                                                                                  \
    GL_FUNCTION(glLinkProgram)                                                                                         \
    GL_FUNCTION(glPixelStorei)                                                                                         \
    GL_FUNCTION(glReadPixels)                                                                                          \
    GL_FUNCTION(glShaderSource)                                                                                        \
    GL_FUNCTION(glTexImage2D)                                                                                          \
    GL_FUNCTION(glTexParameteri)                                                                                       \
    GL_FUNCTION(glUniform1i)                                                                                           \
    GL_FUNCTION(glUniform3f)                                                                                           \
    GL_FUNCTION(glUniformMatrix4fv)                                                                                    \
    GL_FUNCTION(glUseProgram)                                                                                          \
    GL_FUNCTION(glVertexAttribPointer)                                                                                 \
    GL_FUNCTION(glViewport)

struct GlFunctions {
#define GL_FUNCTION(name) decltype(&::name) name;
    GL_FUNCTIONS(GL_FUNCTION)
#undef GL_FUNCTION
};
