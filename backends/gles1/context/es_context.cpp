#include "context/es_context.h"

#include "announcement/extensions.h"
#include "common/per_back_end/host_gl.h"
#include "desktop_names.h"

namespace {

// The initial mode of the cube map extension differs from desktop OpenGL's, in every unit.
void setTextureGenerationModes() {
    const HostGl &gl = hostGl();
    GLint units = 0;
    gl.getIntegerv(GL_MAX_TEXTURE_UNITS, &units);
    for (GLint unit = 0; unit < units; ++unit) {
        gl.activeTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        for (const GLenum coordinate : {desktop::coordinateS, desktop::coordinateT, desktop::coordinateR})
            gl.texGenf(coordinate, desktop::textureGenMode, GL_REFLECTION_MAP_OES);
    }
    gl.activeTexture(GL_TEXTURE0);
}

} // namespace

EsContext::EsContext(const ContextAttribs &attribs, const void *settings, const void *share)
    : announced(host, settings), shared(this, share) {
    if (carriesExtension(host, "GL_OES_texture_cube_map")) setTextureGenerationModes();
    setAttribs(attribs);
}

void EsContext::setAttribs(const ContextAttribs &attribs) {
    const HostGl &gl = hostGl();
    const std::vector<GLuint> ended = shared->images.takeEnded();
    if (!ended.empty()) gl.deleteTextures(static_cast<GLsizei>(ended.size()), ended.data());
    (attribs.srgbFramebuffer ? gl.enable : gl.disable)(desktop::framebufferSrgb);
    sweepHostErrors();
}

void raise(GLenum error) {
    if (EsContext *const context = EsContext::current()) context->raise(error);
}
