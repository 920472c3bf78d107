// Textures by the application's names.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_targets.h"

namespace {

GLuint hostTexture(GLuint name) {
    EsContext *const context = EsContext::current();
    if (!context || name == 0) return name;
    const HostGl &gl = hostGl();
    return context->shared->textures.findOrMake(name, gl.genTextures, gl.isTexture);
}

// An external texture has no mipmaps and does not repeat.
void setExternalDefaults(GLuint texture) {
    const HostGl &gl = hostGl();
    if (texture == 0 || gl.isTexture(texture)) return;
    gl.bindTexture(GL_TEXTURE_2D, texture);
    gl.texParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl.texParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.texParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

} // namespace

namespace overrides {

void GL_APIENTRY genTextures(GLsizei n, GLuint *textures) {
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !textures) return hostGl().genTextures(n, textures);
    context->shared->textures.generate(n, textures, hostGl().genTextures);
}

void GL_APIENTRY deleteTextures(GLsizei n, const GLuint *textures) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !textures) return gl.deleteTextures(n, textures);
    for (GLsizei index = 0; index < n; ++index) {
        const GLuint host = context->shared->textures.remove(textures[index]);
        if (host == 0) continue;
        context->shared->swizzles.remove(host);
        gl.deleteTextures(1, &host);
    }
}

GLboolean GL_APIENTRY isTexture(GLuint texture) {
    const EsContext *const context = EsContext::current();
    return hostGl().isTexture(context ? context->shared->textures.find(texture) : texture);
}

void GL_APIENTRY bindTexture(GLenum target, GLuint texture) {
    const GLuint host = hostTexture(texture);
    if (target == textureExternal) setExternalDefaults(host);
    hostGl().bindTexture(hostTarget(target), host);
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (texture != host) {
        context->lastTextureNames[host] = texture;
    } else if (!context->lastTextureNames.empty()) {
        context->lastTextureNames.erase(host);
    }
}

void GL_APIENTRY framebufferTexture2D(GLenum target, GLenum attachment, GLenum textarget, GLuint texture, GLint level) {
    hostGl().framebufferTexture2D(target, attachment, textarget, hostTexture(texture), level);
}

void GL_APIENTRY framebufferTextureLayer(GLenum target, GLenum attachment, GLuint texture, GLint level, GLint layer) {
    hostGl().framebufferTextureLayer(target, attachment, hostTexture(texture), level, layer);
}

void GL_APIENTRY framebufferTexture(GLenum target, GLenum attachment, GLuint texture, GLint level) {
    hostGl().framebufferTexture(target, attachment, hostTexture(texture), level);
}

void GL_APIENTRY bindImageTexture(GLuint unit, GLuint texture, GLint level, GLboolean layered, GLint layer,
                                  GLenum access, GLenum format) {
    hostGl().bindImageTexture(unit, hostTexture(texture), level, layered, layer, access, format);
}

void GL_APIENTRY copyImageSubData(GLuint srcName, GLenum srcTarget, GLint srcLevel, GLint srcX, GLint srcY, GLint srcZ,
                                  GLuint dstName, GLenum dstTarget, GLint dstLevel, GLint dstX, GLint dstY, GLint dstZ,
                                  GLsizei srcWidth, GLsizei srcHeight, GLsizei srcDepth) {
    const EsContext *const context = EsContext::current();
    const auto host = [&](GLuint name, GLenum target) {
        if (!context) return name;
        const ShareGroup &shared = *context->shared;
        return target == GL_RENDERBUFFER ? shared.renderbuffers.find(name) : shared.textures.find(name);
    };
    hostGl().copyImageSubData(host(srcName, srcTarget), hostTarget(srcTarget), srcLevel, srcX, srcY, srcZ,
                              host(dstName, dstTarget), hostTarget(dstTarget), dstLevel, dstX, dstY, dstZ, srcWidth,
                              srcHeight, srcDepth);
}

} // namespace overrides
