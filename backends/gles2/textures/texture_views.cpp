// Texture views.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_formats.h"

namespace {

// A texture with the storage of an EGL image has a format without a size for the application, and views may have it.
GLenum viewFormat(const SharedImages &images, GLuint original, GLenum internal) {
    const bool isUnsized = internal == GL_RGB || internal == GL_RGBA;
    if (!isUnsized || !images.siblings.find(original) || !hostGl().getTextureLevelParameteriv)
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
    const SharedTextures &textures = context->shared->textures;
    const GLuint original = textures.names.find(origtexture);
    hostGl().textureView(textures.names.find(texture), target, original,
                         viewFormat(textures.images, original, internalformat), minlevel, numlevels, minlayer,
                         numlayers);
}

} // namespace overrides
