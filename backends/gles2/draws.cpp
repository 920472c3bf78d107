// Drawing, with what has to be right before it.
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"

namespace {

void prepare() {
    if (EsContext *const context = EsContext::current()) beginDraw(context->wireframe);
}

} // namespace

namespace overrides {

void GL_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count) {
    prepare();
    hostGl().drawArrays(mode, first, count);
}

void GL_APIENTRY drawArraysIndirect(GLenum mode, const void *indirect) {
    prepare();
    hostGl().drawArraysIndirect(mode, indirect);
}

void GL_APIENTRY drawArraysInstanced(GLenum mode, GLint first, GLsizei count, GLsizei instanceCount) {
    prepare();
    hostGl().drawArraysInstanced(mode, first, count, instanceCount);
}

void GL_APIENTRY drawElements(GLenum mode, GLsizei count, GLenum type, const void *indices) {
    prepare();
    hostGl().drawElements(mode, count, type, indices);
}

void GL_APIENTRY drawElementsBaseVertex(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                        GLint baseVertex) {
    prepare();
    hostGl().drawElementsBaseVertex(mode, count, type, indices, baseVertex);
}

void GL_APIENTRY drawElementsIndirect(GLenum mode, GLenum type, const void *indirect) {
    prepare();
    hostGl().drawElementsIndirect(mode, type, indirect);
}

void GL_APIENTRY drawElementsInstanced(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                       GLsizei instanceCount) {
    prepare();
    hostGl().drawElementsInstanced(mode, count, type, indices, instanceCount);
}

void GL_APIENTRY drawElementsInstancedBaseVertex(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                                 GLsizei instanceCount, GLint baseVertex) {
    prepare();
    hostGl().drawElementsInstancedBaseVertex(mode, count, type, indices, instanceCount, baseVertex);
}

void GL_APIENTRY drawRangeElements(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type,
                                   const void *indices) {
    prepare();
    hostGl().drawRangeElements(mode, start, end, count, type, indices);
}

void GL_APIENTRY drawRangeElementsBaseVertex(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type,
                                             const void *indices, GLint baseVertex) {
    prepare();
    hostGl().drawRangeElementsBaseVertex(mode, start, end, count, type, indices, baseVertex);
}

} // namespace overrides
