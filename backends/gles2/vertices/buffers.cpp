// Buffers by the application's names, and where they are bound.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "names/named_objects.h"

namespace {

NameTable *bufferNames() {
    EsContext *const context = EsContext::current();
    return context ? &context->shared->buffers.names : nullptr;
}

GLuint hostBuffer(GLuint name) {
    NameTable *const names = bufferNames();
    const HostGl &gl = hostGl();
    return names ? names->findOrMake(name, gl.genBuffers, gl.isBuffer) : name;
}

// Raises the error and returns true for a binding that the device lacks.
bool isRefused(GLenum target, GLuint index) {
    EsContext *const context = EsContext::current();
    if (!context || (target != GL_UNIFORM_BUFFER && target != GL_TRANSFORM_FEEDBACK_BUFFER)) return false;
    const GLenum limit =
        target == GL_UNIFORM_BUFFER ? GL_MAX_UNIFORM_BUFFER_BINDINGS : GL_MAX_TRANSFORM_FEEDBACK_SEPARATE_ATTRIBS;
    const bool isOver = index >= static_cast<GLuint>(context->announced.most(limit));
    if (isOver) context->raise(GL_INVALID_VALUE);
    return isOver;
}

// The same for an offset that violates the device's alignment.
bool isMisaligned(GLenum target, GLintptr offset) {
    EsContext *const context = target == GL_UNIFORM_BUFFER ? EsContext::current() : nullptr;
    const auto *const limit = context ? context->announced.limit(GL_UNIFORM_BUFFER_OFFSET_ALIGNMENT) : nullptr;
    const GLintptr alignment = limit ? static_cast<GLintptr>(limit->front()) : 1;
    const bool isBetween = alignment > 1 && offset % alignment != 0;
    if (isBetween) context->raise(GL_INVALID_VALUE);
    return isBetween;
}

} // namespace

namespace overrides {

void GL_APIENTRY genBuffers(GLsizei n, GLuint *buffers) {
    generateNames(bufferNames(), n, buffers, hostGl().genBuffers);
}

void GL_APIENTRY deleteBuffers(GLsizei n, const GLuint *buffers) {
    EsContext *const context = EsContext::current();
    deleteNames(bufferNames(), n, buffers, hostGl().deleteBuffers, [&](GLuint host) {
        if (context->vertices.arrayBuffer == host) context->vertices.arrayBuffer = 0;
        context->vertices.bound->forgetBuffer(host);
    });
}

GLboolean GL_APIENTRY isBuffer(GLuint buffer) {
    const NameTable *const names = bufferNames();
    return hostGl().isBuffer(names ? names->find(buffer) : buffer);
}

void GL_APIENTRY bindBuffer(GLenum target, GLuint buffer) {
    const GLuint host = hostBuffer(buffer);
    hostGl().bindBuffer(target, host);
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (target == GL_ARRAY_BUFFER) context->vertices.arrayBuffer = host;
    if (target == GL_ELEMENT_ARRAY_BUFFER) context->vertices.bound->setElementBuffer(host);
}

void GL_APIENTRY bindBufferBase(GLenum target, GLuint index, GLuint buffer) {
    if (!isRefused(target, index)) hostGl().bindBufferBase(target, index, hostBuffer(buffer));
}

void GL_APIENTRY bindBufferRange(GLenum target, GLuint index, GLuint buffer, GLintptr offset, GLsizeiptr size) {
    if (!isRefused(target, index) && !isMisaligned(target, offset))
        hostGl().bindBufferRange(target, index, hostBuffer(buffer), offset, size);
}

void GL_APIENTRY bindVertexBuffer(GLuint binding, GLuint buffer, GLintptr offset, GLsizei stride) {
    EsContext *const context = EsContext::current();
    const bool isObjectZero = context && context->vertices.bound == &context->vertices.objectZero;
    // Object 0 has no bindings other than those of its arrays.
    if (isObjectZero) return context->raise(GL_INVALID_OPERATION);
    const GLuint host = hostBuffer(buffer);
    hostGl().bindVertexBuffer(binding, host, offset, stride);
    if (!context || binding >= context->vertices.maxAttribs || offset < 0 || stride < 0) return;
    VertexArrayState &state = *context->vertices.bound;
    state.setBuffer(binding, host);
    if (host == 0) state.attribs[binding].pointer = nullptr;
}

void GL_APIENTRY texBuffer(GLenum target, GLenum internalformat, GLuint buffer) {
    hostGl().texBuffer(target, internalformat, hostBuffer(buffer));
}

void GL_APIENTRY texBufferRange(GLenum target, GLenum internalformat, GLuint buffer, GLintptr offset, GLsizeiptr size) {
    hostGl().texBufferRange(target, internalformat, hostBuffer(buffer), offset, size);
}

} // namespace overrides
