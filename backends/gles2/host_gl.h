// What this library itself calls on the host. Any thread.
#pragma once

#include <GLES3/gl32.h>

#include <type_traits>

// HOST_CALL(field, name)
#define HOST_CALLS(HOST_CALL)                                                                                          \
    HOST_CALL(bindVertexArray, glBindVertexArray)                                                                      \
    HOST_CALL(deleteVertexArrays, glDeleteVertexArrays)                                                                \
    HOST_CALL(disable, glDisable)                                                                                      \
    HOST_CALL(drawArrays, glDrawArrays)                                                                                \
    HOST_CALL(drawArraysInstanced, glDrawArraysInstanced)                                                              \
    HOST_CALL(drawArraysIndirect, glDrawArraysIndirect)                                                                \
    HOST_CALL(drawElementsIndirect, glDrawElementsIndirect)                                                            \
    HOST_CALL(drawElements, glDrawElements)                                                                            \
    HOST_CALL(drawElementsBaseVertex, glDrawElementsBaseVertex)                                                        \
    HOST_CALL(drawElementsInstanced, glDrawElementsInstanced)                                                          \
    HOST_CALL(drawElementsInstancedBaseVertex, glDrawElementsInstancedBaseVertex)                                      \
    HOST_CALL(drawRangeElements, glDrawRangeElements)                                                                  \
    HOST_CALL(drawRangeElementsBaseVertex, glDrawRangeElementsBaseVertex)                                              \
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

// DESKTOP_CALL(field, name, type)   What ES has no name for.
#define DESKTOP_CALLS(DESKTOP_CALL) DESKTOP_CALL(polygonMode, glPolygonMode, void(GLenum face, GLenum mode))

struct HostGl {
#define HOST_CALL(field, name) decltype(&::name) field;
#define DESKTOP_CALL(field, name, type) std::add_pointer_t<type> field;
    HOST_CALLS(HOST_CALL)
    DESKTOP_CALLS(DESKTOP_CALL)
#undef DESKTOP_CALL
#undef HOST_CALL
};

// Null when the host has no OpenGL library or the library lacks one of the functions; nothing works then.
[[nodiscard]] const HostGl *findHostGl();

// For code that runs only once findHostGl() has answered: overrides and contexts.
[[nodiscard]] const HostGl &hostGl();
