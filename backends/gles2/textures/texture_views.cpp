// Texture views.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_formats.h"

namespace overrides {

void GL_APIENTRY textureView(GLuint texture, GLenum target, GLuint origtexture, GLenum internalformat, GLuint minlevel,
                             GLuint numlevels, GLuint minlayer, GLuint numlayers) {
    const EsContext *const context = EsContext::current();
    if (!context) return;
    // The view's name has no texture yet and the original has one, so no object is created for either.
    const NameTable &names = context->shared->textures.names;
    hostGl().textureView(names.find(texture), target, names.find(origtexture),
                         hostTextureFormat(internalformat).internal, minlevel, numlevels, minlayer, numlayers);
}

} // namespace overrides
