#include "context/es_context.h"

#include "announcement/extensions.h"
#include "common/live_contexts.h"
#include "common/per_back_end/host_gl.h"
#include "desktop_names.h"

namespace {

std::string hostText(GLenum name) {
    const GLubyte *const text = hostGl().getString(name);
    return text ? reinterpret_cast<const char *>(text) : "";
}

std::optional<EsBlock> readDevice(const void *settings) {
    const char *const profile = settings ? zvSettingsProfileText(settings) : nullptr;
    return profile ? readEsBlock(profile, 1, 1) : std::nullopt;
}

std::string told(const std::optional<EsBlock> &device, std::string EsBlock::*field, GLenum hostName) {
    return device && !((*device).*field).empty() ? (*device).*field : hostText(hostName);
}

// The extension of cube maps has another default than desktop OpenGL, in every unit.
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
    : device(readDevice(settings)), version("OpenGL ES-CM 1.1 Zelvane (" + hostText(GL_VERSION) + ')'),
      vendor(told(device, &EsBlock::vendor, GL_VENDOR)), renderer(told(device, &EsBlock::renderer, GL_RENDERER)),
      extensions(announcedExtensions(host, device)), limits(host, device), textureCrops(joinTextureCrops(this, share)) {
    if (carriesExtension(host, "GL_OES_texture_cube_map")) setTextureGenerationModes();
    setAttribs(attribs);
    contextBegins(this);
}

EsContext::~EsContext() {
    contextEnds(this);
    leaveTextureCrops(this);
}

EsContext *EsContext::current() {
    return static_cast<EsContext *>(currentLiveContext());
}

void EsContext::setAttribs(const ContextAttribs &attribs) {
    const HostGl &gl = hostGl();
    (attribs.srgbFramebuffer ? gl.enable : gl.disable)(desktop::framebufferSrgb);
    sweepHostErrors();
}

void raise(GLenum error) {
    if (EsContext *const context = EsContext::current()) context->raise(error);
}
