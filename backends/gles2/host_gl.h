// What this library itself calls on the host. Any thread.
#pragma once

#include <GLES3/gl32.h>

// HOST_CALL(field, name)
#define HOST_CALLS(HOST_CALL)                                                                                          \
    HOST_CALL(bindVertexArray, glBindVertexArray)                                                                      \
    HOST_CALL(deleteVertexArrays, glDeleteVertexArrays)                                                                \
    HOST_CALL(disable, glDisable)                                                                                      \
    HOST_CALL(enable, glEnable)                                                                                        \
    HOST_CALL(genVertexArrays, glGenVertexArrays)                                                                      \
    HOST_CALL(getBooleanv, glGetBooleanv)                                                                              \
    HOST_CALL(getError, glGetError)                                                                                    \
    HOST_CALL(getFloatv, glGetFloatv)                                                                                  \
    HOST_CALL(getInteger64v, glGetInteger64v)                                                                          \
    HOST_CALL(getIntegerv, glGetIntegerv)                                                                              \
    HOST_CALL(getShaderSource, glGetShaderSource)                                                                      \
    HOST_CALL(getShaderiv, glGetShaderiv)                                                                              \
    HOST_CALL(getString, glGetString)                                                                                  \
    HOST_CALL(getStringi, glGetStringi)                                                                                \
    HOST_CALL(shaderSource, glShaderSource)

struct HostGl {
#define HOST_CALL(field, name) decltype(&::name) field;
    HOST_CALLS(HOST_CALL)
#undef HOST_CALL
};

// Null when the host has no OpenGL library or the library lacks one of the functions; nothing works then.
[[nodiscard]] const HostGl *findHostGl();

// For code that runs only once findHostGl() has answered: overrides and contexts.
[[nodiscard]] const HostGl &hostGl();
