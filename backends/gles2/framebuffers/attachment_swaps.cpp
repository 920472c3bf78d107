#include "framebuffers/attachment_swaps.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"

namespace {

GLint ask(GLenum attachment, GLenum pname) {
    GLint value = 0;
    hostGl().getFramebufferAttachmentParameteriv(GL_READ_FRAMEBUFFER, attachment, pname, &value);
    return value;
}

void attach(GLenum attachment, const HostImage &to, bool wasTexture) {
    const HostGl &gl = hostGl();
    if (to.kind == GL_RENDERBUFFER) {
        return gl.framebufferRenderbuffer(GL_READ_FRAMEBUFFER, attachment, GL_RENDERBUFFER, to.name);
    }
    const GLint face = wasTexture ? ask(attachment, GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_CUBE_MAP_FACE) : 0;
    const GLint level = wasTexture ? ask(attachment, GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_LEVEL) : 0;
    gl.framebufferTexture2D(GL_READ_FRAMEBUFFER, attachment, face ? static_cast<GLenum>(face) : GLenum(GL_TEXTURE_2D),
                            to.name, level);
}

} // namespace

void swapAttached(EsContext &context, const HostImage &from, const HostImage &to) {
    const HostGl &gl = hostGl();
    GLint colorCount = 0;
    gl.getIntegerv(GL_MAX_COLOR_ATTACHMENTS, &colorCount);
    const auto swap = [&](GLenum attachment) {
        const auto kind = static_cast<GLenum>(ask(attachment, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE));
        if (kind != from.kind) return;
        const auto name = static_cast<GLuint>(ask(attachment, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME));
        if (name == from.name) attach(attachment, to, kind == GL_TEXTURE);
    };
    for (const GLuint framebuffer : context.framebuffers.names.hostNames()) {
        // A framebuffer that was never bound does not exist yet.
        if (!gl.isFramebuffer(framebuffer)) continue;
        gl.bindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer);
        for (GLint index = 0; index < colorCount; ++index)
            swap(GL_COLOR_ATTACHMENT0 + static_cast<GLenum>(index));
        swap(GL_DEPTH_ATTACHMENT);
        swap(GL_STENCIL_ATTACHMENT);
    }
    gl.bindFramebuffer(GL_READ_FRAMEBUFFER, context.framebuffers.read());
}
