// Framebuffer attachments, by the application's names.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/renderbuffers.h"
#include "framebuffers/surface_buffers.h"

namespace {

// Raises the error and returns true for an attachment that the device lacks.
bool isRefused(GLenum attachment) {
    EsContext *const context = EsContext::current();
    if (!context || attachment < GL_COLOR_ATTACHMENT0 || attachment > GL_COLOR_ATTACHMENT31) return false;
    const GLenum index = attachment - GL_COLOR_ATTACHMENT0;
    const bool isOver = index >= static_cast<GLenum>(context->announced.most(GL_MAX_COLOR_ATTACHMENTS));
    if (isOver) context->raise(GL_INVALID_OPERATION);
    return isOver;
}

} // namespace

namespace overrides {

void GL_APIENTRY framebufferRenderbuffer(GLenum target, GLenum attachment, GLenum renderbuffertarget,
                                         GLuint renderbuffer) {
    if (isRefused(attachment)) return;
    const GLuint host = hostRenderbuffer(renderbuffer);
    const EsContext *const context = EsContext::current();
    const auto texture = context ? context->shared->renderbufferImages.textures.find(host) : std::nullopt;
    if (texture && renderbuffertarget == GL_RENDERBUFFER) {
        return hostGl().framebufferTexture2D(target, attachment, GL_TEXTURE_2D, *texture, 0);
    }
    hostGl().framebufferRenderbuffer(target, attachment, renderbuffertarget, host);
}

void GL_APIENTRY framebufferTexture2D(GLenum target, GLenum attachment, GLenum textarget, GLuint texture, GLint level) {
    if (!isRefused(attachment))
        hostGl().framebufferTexture2D(target, attachment, textarget, hostTexture(texture), level);
}

void GL_APIENTRY framebufferTextureLayer(GLenum target, GLenum attachment, GLuint texture, GLint level, GLint layer) {
    if (!isRefused(attachment))
        hostGl().framebufferTextureLayer(target, attachment, hostTexture(texture), level, layer);
}

void GL_APIENTRY framebufferTexture(GLenum target, GLenum attachment, GLuint texture, GLint level) {
    if (!isRefused(attachment)) hostGl().framebufferTexture(target, attachment, hostTexture(texture), level);
}

void GL_APIENTRY getFramebufferAttachmentParameteriv(GLenum target, GLenum attachment, GLenum pname, GLint *params) {
    const HostGl &gl = hostGl();
    const EsContext *const context = EsContext::current();
    if (!context || !params) return gl.getFramebufferAttachmentParameteriv(target, attachment, pname, params);
    gl.getFramebufferAttachmentParameteriv(target, hostBuffer(attachment), pname, params);
    const Framebuffers &framebuffers = context->framebuffers;
    // The host's surface supports sRGB even if the application's is linear.
    if (pname == GL_FRAMEBUFFER_ATTACHMENT_COLOR_ENCODING && *params == GL_SRGB && framebuffers.bound(target) == 0 &&
        !framebuffers.isSurfaceSrgb()) {
        *params = GL_LINEAR;
    }
    if (pname != GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME && pname != GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE) return;
    const ShareGroup &shared = *context->shared;
    const auto ask = [&](GLenum name) {
        GLint value = GL_NONE;
        gl.getFramebufferAttachmentParameteriv(target, attachment, name, &value);
        return static_cast<GLuint>(value);
    };
    const GLenum type = ask(GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE);
    const auto stoodFor = type == GL_TEXTURE && !shared.renderbufferImages.renderbuffers.isEmpty()
                              ? shared.renderbufferImages.renderbuffers.find(ask(GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME))
                              : std::nullopt;
    if (pname == GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE) {
        if (stoodFor) *params = GL_RENDERBUFFER;
        return;
    }
    const NameTable &names = type == GL_RENDERBUFFER || stoodFor ? shared.renderbuffers : shared.textures.names;
    *params = static_cast<GLint>(names.nameOf(stoodFor.value_or(static_cast<GLuint>(*params))));
}

} // namespace overrides
