// The capabilities of glEnable: those of ES 1 only, of the many that the host has.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "desktop_names.h"
#include "fixed_function/parameters.h"

namespace {

using Switch = void(GL_APIENTRY *)(GLenum);

bool isCapability(GLenum cap) {
    const State *const state = findState(cap);
    return state && state->kind == Kind::Capability;
}

void switchTo(GLenum cap, Switch set) {
    if (!isCapability(cap)) return raise(GL_INVALID_ENUM);
    if (cap == GL_MATRIX_PALETTE_OES) {
        if (EsContext *const context = EsContext::current()) context->palette.isOn = set == hostGl().enable;
        return;
    }
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
    EsContext *const context = EsContext::current();
    switch (cap) {
    case GL_MATRIX_PALETTE_OES:
        return context && context->palette.isOn;
    case GL_POINT_SIZE_ARRAY_OES:
    case GL_MATRIX_INDEX_ARRAY_OES:
    case GL_WEIGHT_ARRAY_OES: {
        const EsArray *const array = context ? context->vertices.arrays.bound().find(cap) : nullptr;
        return array && array->isOn;
    }
    case GL_TEXTURE_GEN_STR_OES:
        return hostGl().isEnabled(desktop::textureGenS);
    case GL_VERTEX_ARRAY:
    case GL_NORMAL_ARRAY:
    case GL_COLOR_ARRAY:
    case GL_TEXTURE_COORD_ARRAY:
        return hostGl().isEnabled(cap);
    default:
        if (isCapability(cap)) return hostGl().isEnabled(cap);
        raise(GL_INVALID_ENUM);
        return GL_FALSE;
    }
}

} // namespace overrides
