// Texture views.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_formats.h"

namespace {

// A view by a format without a size has the format of its original, as far as the host can tell.
GLenum viewFormat(GLuint original, GLenum internal) {
    if ((internal != GL_RGB && internal != GL_RGBA) || !hostGl().getTextureLevelParameteriv)
        return hostTextureFormat(internal).internal;
    auto format = static_cast<GLint>(internal);
    hostGl().getTextureLevelParameteriv(original, 0, GL_TEXTURE_INTERNAL_FORMAT, &format);
    return static_cast<GLenum>(format);
}

} // namespace

namespace overrides {

void GL_APIENTRY textureView(GLuint texture, GLenum target, GLuint origtexture, GLenum internalformat, GLuint minlevel,
                             GLuint numlevels, GLuint minlayer, GLuint numlayers) {
    const EsContext *const context = EsContext::current();
    if (!context) return;
    // The view's name has no texture yet and the original has one, so no object is created for either.
    const NameTable &names = context->shared->textures.names;
    const GLuint original = names.find(origtexture);
    hostGl().textureView(names.find(texture), target, original, viewFormat(original, internalformat), minlevel,
                         numlevels, minlayer, numlayers);
}

} // namespace overrides
