// What glEnable takes: the list of ES 1, and not whatever else the host could switch.
#include "desktop_names.h"
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"
#include "parameters.h"

namespace {

using Switch = void(GL_APIENTRY *)(GLenum);

void switchTo(GLenum cap, Switch set) {
    const State *const state = findState(cap);
    if (!state || state->kind != Kind::Capability) return raise(GL_INVALID_ENUM);
    if (cap != GL_TEXTURE_GEN_STR_OES) return set(cap);
    for (const GLenum coordinate : {desktop::textureGenS, desktop::textureGenT, desktop::textureGenR})
        set(coordinate);
}

} // namespace

namespace overrides {

void GL_APIENTRY enable(GLenum cap) {
    switchTo(cap, hostGl().enable);
}

void GL_APIENTRY disable(GLenum cap) {
    switchTo(cap, hostGl().disable);
}

GLboolean GL_APIENTRY isEnabled(GLenum cap) {
    const EsContext *const context = EsContext::current();
    if (cap == GL_TEXTURE_GEN_STR_OES) return hostGl().isEnabled(desktop::textureGenS);
    if (context && cap == GL_POINT_SIZE_ARRAY_OES) return context->arrays.bound().isPointSizeOn;
    return hostGl().isEnabled(cap);
}

} // namespace overrides
