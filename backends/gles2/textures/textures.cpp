// Textures by the application's names.
#include "textures/textures.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "names/named_objects.h"
#include "textures/texture_targets.h"

namespace {

NameTable *textureNames() {
    EsContext *const context = EsContext::current();
    return context ? &context->shared->textures.names : nullptr;
}

// External textures have no mipmaps and do not repeat.
void setExternalDefaults(GLuint texture) {
    const HostGl &gl = hostGl();
    if (texture == 0 || gl.isTexture(texture)) return;
    gl.bindTexture(GL_TEXTURE_2D, texture);
    gl.texParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl.texParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.texParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

} // namespace

void deleteEndedImages(SharedTextures &textures) {
    const std::vector<GLuint> ended = textures.images.takeEnded();
    for (const GLuint storage : ended)
        textures.names.forgetHidden(storage);
    if (!ended.empty()) hostGl().deleteTextures(static_cast<GLsizei>(ended.size()), ended.data());
}

GLuint hostTexture(GLuint name) {
    NameTable *const names = textureNames();
    const HostGl &gl = hostGl();
    return names ? names->findOrMake(name, gl.genTextures, gl.isTexture) : name;
}

namespace overrides {

void GL_APIENTRY genTextures(GLsizei n, GLuint *textures) {
    generateNames(textureNames(), n, textures, hostGl().genTextures);
}

void GL_APIENTRY deleteTextures(GLsizei n, const GLuint *textures) {
    EsContext *const context = EsContext::current();
    deleteNames(textureNames(), n, textures, hostGl().deleteTextures, [&](GLuint host) {
        context->shared->textures.swizzles.remove(host);
        context->shared->textures.images.siblings.remove(host);
        context->textures.lastNames.erase(host);
    });
}

GLboolean GL_APIENTRY isTexture(GLuint texture) {
    const NameTable *const names = textureNames();
    return hostGl().isTexture(names ? names->find(texture) : texture);
}

void GL_APIENTRY bindTexture(GLenum target, GLuint texture) {
    const GLuint host = hostTexture(texture);
    if (target == textureExternal) setExternalDefaults(host);
    hostGl().bindTexture(hostTarget(target), host);
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (texture != host) {
        context->textures.lastNames[host] = texture;
    } else if (!context->textures.lastNames.empty()) {
        context->textures.lastNames.erase(host);
    }
}

void GL_APIENTRY activeTexture(GLenum texture) {
    EsContext *const context = EsContext::current();
    const bool isOver = context && texture >= context->textures.unitEnd;
    if (isOver) return context->raise(GL_INVALID_ENUM);
    hostGl().activeTexture(texture);
}

void GL_APIENTRY bindImageTexture(GLuint unit, GLuint texture, GLint level, GLboolean layered, GLint layer,
                                  GLenum access, GLenum format) {
    hostGl().bindImageTexture(unit, hostTexture(texture), level, layered, layer, access, format);
}

} // namespace overrides
