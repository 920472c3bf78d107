// Buffers by the application's names, and where they are bound.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace {

GLuint hostBuffer(GLuint name) {
    EsContext *const context = EsContext::current();
    if (!context || name == 0) return name;
    const HostGl &gl = hostGl();
    return context->shared->buffers.findOrMake(name, gl.genBuffers, gl.isBuffer);
}

} // namespace

namespace overrides {

void GL_APIENTRY genBuffers(GLsizei n, GLuint *buffers) {
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !buffers) return hostGl().genBuffers(n, buffers);
    context->shared->buffers.generate(n, buffers, hostGl().genBuffers);
}

void GL_APIENTRY deleteBuffers(GLsizei n, const GLuint *buffers) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !buffers) return gl.deleteBuffers(n, buffers);
    for (GLsizei index = 0; index < n; ++index) {
        const GLuint host = context->shared->buffers.remove(buffers[index]);
        if (host == 0) continue;
        if (context->arrayBuffer == host) context->arrayBuffer = 0;
        context->vertexArray->forgetBuffer(host);
        gl.deleteBuffers(1, &host);
    }
}

GLboolean GL_APIENTRY isBuffer(GLuint buffer) {
    const EsContext *const context = EsContext::current();
    return hostGl().isBuffer(context ? context->shared->buffers.find(buffer) : buffer);
}

void GL_APIENTRY bindBuffer(GLenum target, GLuint buffer) {
    const GLuint host = hostBuffer(buffer);
    hostGl().bindBuffer(target, host);
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (target == GL_ARRAY_BUFFER) context->arrayBuffer = host;
    if (target == GL_ELEMENT_ARRAY_BUFFER) context->vertexArray->elementBuffer = host;
}

void GL_APIENTRY bindBufferBase(GLenum target, GLuint index, GLuint buffer) {
    hostGl().bindBufferBase(target, index, hostBuffer(buffer));
}

void GL_APIENTRY bindBufferRange(GLenum target, GLuint index, GLuint buffer, GLintptr offset, GLsizeiptr size) {
    hostGl().bindBufferRange(target, index, hostBuffer(buffer), offset, size);
}

void GL_APIENTRY bindVertexBuffer(GLuint binding, GLuint buffer, GLintptr offset, GLsizei stride) {
    const GLuint host = hostBuffer(buffer);
    hostGl().bindVertexBuffer(binding, host, offset, stride);
    EsContext *const context = EsContext::current();
    if (!context || binding >= context->maxVertexAttribs || offset < 0 || stride < 0) return;
    VertexArrayState &state = *context->vertexArray;
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
