#include "textures/stand_ins.h"

#include "common/per_back_end/bound_textures.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "common/per_back_end/texture_contents.h"
#include "context/es_context.h"

#include <array>

namespace {

constexpr GLenum parameters[] = {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER, GL_TEXTURE_WRAP_S,
                                 GL_TEXTURE_WRAP_T,     GL_GENERATE_MIPMAP,    GL_TEXTURE_MAX_LEVEL_APPLE};
constexpr GLenum attachments[] = {GL_COLOR_ATTACHMENT0_OES, GL_DEPTH_ATTACHMENT_OES, GL_STENCIL_ATTACHMENT_OES};

GLenum bindingOf(GLenum target) {
    return target == GL_TEXTURE_2D ? GL_TEXTURE_BINDING_2D : GL_TEXTURE_BINDING_CUBE_MAP_OES;
}

GLenum wholeTarget(GLenum target) {
    return target == GL_TEXTURE_2D ? target : GLenum(GL_TEXTURE_CUBE_MAP_OES);
}

void bindWithParameters(GLenum target, GLuint texture) {
    const HostGl &gl = hostGl();
    std::array<GLint, std::size(parameters)> values = {};
    for (size_t index = 0; index < values.size(); ++index)
        gl.getTexParameteriv(target, parameters[index], &values[index]);
    gl.bindTexture(target, texture);
    for (size_t index = 0; index < values.size(); ++index)
        gl.texParameteri(target, parameters[index], values[index]);
}

// Replaces the texture in the bound framebuffer.
void swapAttached(GLuint old, GLuint fresh) {
    const HostGl &gl = hostGl();
    GLint bound = 0;
    gl.getIntegerv(GL_FRAMEBUFFER_BINDING_OES, &bound);
    if (bound == 0) return;
    for (const GLenum attachment : attachments) {
        const auto ask = [&](GLenum pname) {
            GLint value = 0;
            gl.getFramebufferAttachmentParameteriv(GL_FRAMEBUFFER_OES, attachment, pname, &value);
            return static_cast<GLuint>(value);
        };
        if (ask(GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE_OES) != GL_TEXTURE) continue;
        if (ask(GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME_OES) != old) continue;
        const GLuint face = ask(GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_CUBE_MAP_FACE_OES);
        const auto level = static_cast<GLint>(ask(GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_LEVEL_OES));
        gl.framebufferTexture2D(GL_FRAMEBUFFER_OES, attachment, face ? face : GLenum(GL_TEXTURE_2D), fresh, level);
    }
}

} // namespace

void StandIns::set(GLuint name, GLuint hostName) {
    if (const auto old = m_hostNames.find(name)) m_names.remove(*old);
    m_hostNames.set(name, hostName);
    m_names.set(hostName, name);
}

GLuint StandIns::remove(GLuint name) {
    const auto old = m_hostNames.find(name);
    if (!old) return 0;
    m_hostNames.remove(name);
    m_names.remove(*old);
    return *old;
}

GLuint boundHostTexture(GLenum target) {
    return textureBoundTo(bindingOf(target));
}

void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh) {
    ShareGroup &shared = *context.shared;
    const GLuint old = boundHostTexture(target);
    const GLuint name = shared.standIns.nameOf(old);
    bindWithParameters(target, fresh);
    shared.standIns.set(name, fresh);
    rebindUnits(target, bindingOf(target), GL_MAX_TEXTURE_UNITS, old, fresh);
    swapAttached(old, fresh);
    shared.images.siblings.remove(old);
    // The object of that name stays, so that the host does not generate the name for another one.
    if (old != name) hostGl().deleteTextures(1, &old);
}

void leaveImage(GLenum target, GLint level) {
    EsContext *const context = EsContext::current();
    if (!context || context->shared->images.siblings.isEmpty()) return;
    const GLenum whole = wholeTarget(target);
    const auto sibling = context->shared->images.siblings.find(boundHostTexture(whole));
    const auto shape = sibling && sibling->isMutable ? boundTextureShape(whole) : std::nullopt;
    if (!shape) return;
    reportingMemory(*context, [&] {
        replaceAllBut(*shape, target, level, [&] {
            GLuint fresh = 0;
            hostGl().genTextures(1, &fresh);
            replaceBoundTexture(*context, whole, fresh);
        });
    });
}

namespace overrides {

void GL_APIENTRY bindTexture(GLenum target, GLuint texture) {
    const EsContext *const context = EsContext::current();
    hostGl().bindTexture(target, context ? context->shared->standIns.hostName(texture) : texture);
}

void GL_APIENTRY framebufferTexture2DOES(GLenum target, GLenum attachment, GLenum textarget, GLuint texture,
                                         GLint level) {
    const EsContext *const context = EsContext::current();
    const GLuint host = context ? context->shared->standIns.hostName(texture) : texture;
    hostGl().framebufferTexture2D(target, attachment, textarget, host, level);
}

void GL_APIENTRY getFramebufferAttachmentParameterivOES(GLenum target, GLenum attachment, GLenum pname, GLint *params) {
    hostGl().getFramebufferAttachmentParameteriv(target, attachment, pname, params);
    const EsContext *const context = EsContext::current();
    if (!context || !params || pname != GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME_OES) return;
    GLint type = 0;
    hostGl().getFramebufferAttachmentParameteriv(target, attachment, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE_OES, &type);
    if (type == GL_TEXTURE)
        *params = static_cast<GLint>(context->shared->standIns.nameOf(static_cast<GLuint>(*params)));
}

} // namespace overrides
