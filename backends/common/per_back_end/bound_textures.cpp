#include "common/per_back_end/bound_textures.h"

#include "common/per_back_end/host_gl.h"

GLuint textureBoundTo(GLenum binding) {
    GLint bound = 0;
    hostGl().getIntegerv(binding, &bound);
    return static_cast<GLuint>(bound);
}

void rebindUnits(GLenum target, GLenum binding, GLenum unitLimit, GLuint old, GLuint fresh) {
    const HostGl &gl = hostGl();
    GLint active = GL_TEXTURE0;
    GLint count = 0;
    gl.getIntegerv(GL_ACTIVE_TEXTURE, &active);
    gl.getIntegerv(unitLimit, &count);
    for (GLint unit = 0; unit < count; ++unit) {
        gl.activeTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        if (textureBoundTo(binding) == old) gl.bindTexture(target, fresh);
    }
    gl.activeTexture(static_cast<GLenum>(active));
}
