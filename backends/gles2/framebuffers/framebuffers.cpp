// Framebuffers and renderbuffers by the application's names, and the surface: it is framebuffer 0 and has one colour
// buffer, which ES calls GL_BACK whatever the host has.
#include "framebuffers/surface_buffers.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_formats.h"
#include "vertices/vertex_format.h"

#include <span>

namespace {

GLuint hostFramebuffer(GLuint name) {
    EsContext *const context = EsContext::current();
    return context ? context->framebuffers.findOrMake(name, hostGl().genFramebuffers, hostGl().isFramebuffer) : name;
}

GLuint hostRenderbuffer(GLuint name) {
    EsContext *const context = EsContext::current();
    if (!context || name == 0) return name;
    const HostGl &gl = hostGl();
    return context->shared->renderbuffers.findOrMake(name, gl.genRenderbuffers, gl.isRenderbuffer);
}

GLenum hostRenderbufferFormat(GLenum format) {
    return EsContext::current() ? hostTextureFormat(format).internal : format;
}

// The surface has its one buffer or none; an attachment of a framebuffer has a place of its own, where desktop OpenGL
// takes any order. The host judges what is no buffer at all.
bool isDrawBufferList(const EsContext &context, std::span<const GLenum> buffers) {
    if (context.drawFramebuffer == 0) return buffers.size() == 1 && (buffers[0] == GL_BACK || buffers[0] == GL_NONE);
    for (size_t index = 0; index < buffers.size(); ++index) {
        const bool isAttachment = buffers[index] >= GL_COLOR_ATTACHMENT0 && buffers[index] <= GL_COLOR_ATTACHMENT31;
        if (buffers[index] == GL_BACK) return false;
        if (isAttachment && buffers[index] != GL_COLOR_ATTACHMENT0 + index) return false;
    }
    return true;
}

} // namespace

GLenum hostBuffer(GLenum buffer) {
    constexpr GLenum doubleBuffer = 0x0C32;
    if (buffer != GL_BACK) return buffer;
    GLint isDouble = 0;
    hostGl().getIntegerv(doubleBuffer, &isDouble);
    return isDouble ? hostBackLeft : hostFrontLeft;
}

GLenum esBuffer(GLenum buffer) {
    const bool isOfSurface = buffer == hostBackLeft || buffer == hostFrontLeft || buffer == GL_FRONT;
    return isOfSurface ? GLenum(GL_BACK) : buffer;
}

namespace overrides {

void GL_APIENTRY genFramebuffers(GLsizei n, GLuint *framebuffers) {
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !framebuffers) return hostGl().genFramebuffers(n, framebuffers);
    context->framebuffers.generate(n, framebuffers, hostGl().genFramebuffers);
}

void GL_APIENTRY deleteFramebuffers(GLsizei n, const GLuint *framebuffers) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !framebuffers) return gl.deleteFramebuffers(n, framebuffers);
    for (GLsizei index = 0; index < n; ++index) {
        const GLuint host = context->framebuffers.remove(framebuffers[index]);
        if (!host) continue;
        gl.deleteFramebuffers(1, &host);
        // Deleting what is bound binds the surface.
        if (host == context->drawFramebuffer) context->setDrawFramebuffer(0);
    }
}

GLboolean GL_APIENTRY isFramebuffer(GLuint framebuffer) {
    const EsContext *const context = EsContext::current();
    return hostGl().isFramebuffer(context ? context->framebuffers.find(framebuffer) : framebuffer);
}

void GL_APIENTRY bindFramebuffer(GLenum target, GLuint framebuffer) {
    const GLuint host = hostFramebuffer(framebuffer);
    hostGl().bindFramebuffer(target, host);
    EsContext *const context = EsContext::current();
    const bool isForDrawing = target == GL_FRAMEBUFFER || target == GL_DRAW_FRAMEBUFFER;
    if (context && isForDrawing) context->setDrawFramebuffer(host);
}

void GL_APIENTRY genRenderbuffers(GLsizei n, GLuint *renderbuffers) {
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !renderbuffers) return hostGl().genRenderbuffers(n, renderbuffers);
    context->shared->renderbuffers.generate(n, renderbuffers, hostGl().genRenderbuffers);
}

void GL_APIENTRY deleteRenderbuffers(GLsizei n, const GLuint *renderbuffers) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !renderbuffers) return gl.deleteRenderbuffers(n, renderbuffers);
    for (GLsizei index = 0; index < n; ++index) {
        const GLuint host = context->shared->renderbuffers.remove(renderbuffers[index]);
        if (host) gl.deleteRenderbuffers(1, &host);
    }
}

GLboolean GL_APIENTRY isRenderbuffer(GLuint renderbuffer) {
    const EsContext *const context = EsContext::current();
    return hostGl().isRenderbuffer(context ? context->shared->renderbuffers.find(renderbuffer) : renderbuffer);
}

void GL_APIENTRY bindRenderbuffer(GLenum target, GLuint renderbuffer) {
    hostGl().bindRenderbuffer(target, hostRenderbuffer(renderbuffer));
}

void GL_APIENTRY framebufferRenderbuffer(GLenum target, GLenum attachment, GLenum renderbuffertarget,
                                         GLuint renderbuffer) {
    hostGl().framebufferRenderbuffer(target, attachment, renderbuffertarget, hostRenderbuffer(renderbuffer));
}

void GL_APIENTRY renderbufferStorage(GLenum target, GLenum internalformat, GLsizei width, GLsizei height) {
    hostGl().renderbufferStorage(target, hostRenderbufferFormat(internalformat), width, height);
}

void GL_APIENTRY renderbufferStorageMultisample(GLenum target, GLsizei samples, GLenum internalformat, GLsizei width,
                                                GLsizei height) {
    hostGl().renderbufferStorageMultisample(target, samples, hostRenderbufferFormat(internalformat), width, height);
}

void GL_APIENTRY getFramebufferAttachmentParameteriv(GLenum target, GLenum attachment, GLenum pname, GLint *params) {
    const HostGl &gl = hostGl();
    const EsContext *const context = EsContext::current();
    if (!context || !params) return gl.getFramebufferAttachmentParameteriv(target, attachment, pname, params);
    gl.getFramebufferAttachmentParameteriv(target, hostBuffer(attachment), pname, params);
    if (pname != GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME) return;
    GLint type = GL_NONE;
    gl.getFramebufferAttachmentParameteriv(target, attachment, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE, &type);
    const ShareGroup &shared = *context->shared;
    const NameTable &names = type == GL_RENDERBUFFER ? shared.renderbuffers : shared.textures;
    *params = static_cast<GLint>(names.nameOf(static_cast<GLuint>(*params)));
}

void GL_APIENTRY readBuffer(GLenum src) {
    hostGl().readBuffer(EsContext::current() ? hostBuffer(src) : src);
}

void GL_APIENTRY drawBuffers(GLsizei n, const GLenum *bufs) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !bufs) return gl.drawBuffers(n, bufs);
    if (!isDrawBufferList(*context, {bufs, static_cast<size_t>(n)})) return context->raise(GL_INVALID_OPERATION);
    const GLenum surfaceBuffer = n == 1 ? hostBuffer(bufs[0]) : GL_NONE;
    gl.drawBuffers(n, context->drawFramebuffer == 0 ? &surfaceBuffer : bufs);
}

void GL_APIENTRY readPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type, void *pixels) {
    hostGl().readPixels(x, y, width, height, format, type == halfFloatOes ? GLenum(GL_HALF_FLOAT) : type, pixels);
}

} // namespace overrides
