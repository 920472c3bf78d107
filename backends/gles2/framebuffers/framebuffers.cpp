// Framebuffers by the application's names; the surface is framebuffer 0.
#include "framebuffers/framebuffers.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "names/named_objects.h"

namespace {

NameTable *framebufferNames() {
    EsContext *const context = EsContext::current();
    return context ? &context->framebuffers.names : nullptr;
}

} // namespace

void Framebuffers::setDrawn(GLuint framebuffer) {
    m_drawn = framebuffer;
    tellHost();
}

void Framebuffers::setSurface(bool isSrgb) {
    m_firstSurface.take();
    m_isSurfaceSrgb = isSrgb;
    tellHost();
}

void Framebuffers::setMayWriteSrgb(bool may) {
    m_mayWriteSrgb = may;
    tellHost();
}

void Framebuffers::force(bool writesSrgb) {
    if (writesSrgb == m_writesSrgb) return;
    m_writesSrgb = writesSrgb;
    (writesSrgb ? hostGl().enable : hostGl().disable)(GL_FRAMEBUFFER_SRGB_EXT);
}

namespace overrides {

void GL_APIENTRY genFramebuffers(GLsizei n, GLuint *framebuffers) {
    generateNames(framebufferNames(), n, framebuffers, hostGl().genFramebuffers);
}

void GL_APIENTRY deleteFramebuffers(GLsizei n, const GLuint *framebuffers) {
    EsContext *const context = EsContext::current();
    deleteNames(framebufferNames(), n, framebuffers, hostGl().deleteFramebuffers, [&](GLuint host) {
        // Deleting the bound framebuffer binds the surface.
        if (host == context->framebuffers.drawn()) context->framebuffers.setDrawn(0);
        if (host == context->framebuffers.read()) context->framebuffers.setRead(0);
    });
}

GLboolean GL_APIENTRY isFramebuffer(GLuint framebuffer) {
    const NameTable *const names = framebufferNames();
    return hostGl().isFramebuffer(names ? names->find(framebuffer) : framebuffer);
}

void GL_APIENTRY bindFramebuffer(GLenum target, GLuint framebuffer) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context) return gl.bindFramebuffer(target, framebuffer);
    const GLuint host = context->framebuffers.names.findOrMake(framebuffer, gl.genFramebuffers, gl.isFramebuffer);
    gl.bindFramebuffer(target, host);
    if (target == GL_FRAMEBUFFER || target == GL_DRAW_FRAMEBUFFER) context->framebuffers.setDrawn(host);
    if (target == GL_FRAMEBUFFER || target == GL_READ_FRAMEBUFFER) context->framebuffers.setRead(host);
}

} // namespace overrides
