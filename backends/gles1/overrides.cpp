#include "overrides.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace {

struct Override {
    std::string_view name;
    void *function;
};

// The published prototype is the judge of the signature.
#define OVERRIDE(name, function)                                                                                       \
    Override {                                                                                                         \
#name, reinterpret_cast < void *>(same <decltype(&::name)>(overrides::function))                               \
    }

template <typename Prototype, typename Function>
Prototype same(Function *function) {
    static_assert(std::is_same_v<Prototype, Function *>);
    return function;
}

const Override table[] = {
    OVERRIDE(glAlphaFuncx, alphaFuncx),
    OVERRIDE(glBindVertexArrayOES, bindVertexArrayOES),
    OVERRIDE(glClearColorx, clearColorx),
    OVERRIDE(glClearDepthf, clearDepthf),
    OVERRIDE(glClearDepthfOES, clearDepthf),
    OVERRIDE(glClearDepthx, clearDepthx),
    OVERRIDE(glClipPlanef, clipPlanef),
    OVERRIDE(glClipPlanefOES, clipPlanef),
    OVERRIDE(glClipPlanefTWG, clipPlanef),
    OVERRIDE(glClipPlanex, clipPlanex),
    OVERRIDE(glClipPlanexTWG, clipPlanex),
    OVERRIDE(glColor4x, color4x),
    OVERRIDE(glColorPointer, colorPointer),
    OVERRIDE(glCompressedTexImage2D, compressedTexImage2D),
    OVERRIDE(glCompressedTexSubImage2D, compressedTexSubImage2D),
    OVERRIDE(glCopyTexImage2D, copyTexImage2D),
    OVERRIDE(glDeleteBuffers, deleteBuffers),
    OVERRIDE(glDeleteTextures, deleteTextures),
    OVERRIDE(glDeleteVertexArraysOES, deleteVertexArraysOES),
    OVERRIDE(glDepthRangef, depthRangef),
    OVERRIDE(glDepthRangefOES, depthRangef),
    OVERRIDE(glDepthRangex, depthRangex),
    OVERRIDE(glDisable, disable),
    OVERRIDE(glDisableClientState, disableClientState),
    OVERRIDE(glDrawArrays, drawArrays),
    OVERRIDE(glDrawElements, drawElements),
    OVERRIDE(glDrawTexfOES, drawTexfOES),
    OVERRIDE(glDrawTexfvOES, drawTexfvOES),
    OVERRIDE(glDrawTexiOES, drawTexiOES),
    OVERRIDE(glDrawTexivOES, drawTexivOES),
    OVERRIDE(glDrawTexsOES, drawTexsOES),
    OVERRIDE(glDrawTexsvOES, drawTexsvOES),
    OVERRIDE(glDrawTexxOES, drawTexxOES),
    OVERRIDE(glDrawTexxvOES, drawTexxvOES),
    OVERRIDE(glEnable, enable),
    OVERRIDE(glEnableClientState, enableClientState),
    OVERRIDE(glFogx, fogx),
    OVERRIDE(glFogxv, fogxv),
    OVERRIDE(glFrustumf, frustumf),
    OVERRIDE(glFrustumfOES, frustumf),
    OVERRIDE(glFrustumx, frustumx),
    OVERRIDE(glGetBooleanv, getBooleanv),
    OVERRIDE(glGetClipPlanef, getClipPlanef),
    OVERRIDE(glGetClipPlanefOES, getClipPlanef),
    OVERRIDE(glGetClipPlanex, getClipPlanex),
    OVERRIDE(glGetError, getError),
    OVERRIDE(glGetFixedv, getFixedv),
    OVERRIDE(glGetFloatv, getFloatv),
    OVERRIDE(glGetIntegerv, getIntegerv),
    OVERRIDE(glGetLightxv, getLightxv),
    OVERRIDE(glGetMaterialxv, getMaterialxv),
    OVERRIDE(glGetPointerv, getPointerv),
    OVERRIDE(glGetString, getString),
    OVERRIDE(glGetTexEnvxv, getTexEnvxv),
    OVERRIDE(glGetTexGenfvOES, getTexGenfvOES),
    OVERRIDE(glGetTexGenivOES, getTexGenivOES),
    OVERRIDE(glGetTexGenxvOES, getTexGenxvOES),
    OVERRIDE(glGetTexParameterfv, getTexParameterfv),
    OVERRIDE(glGetTexParameteriv, getTexParameteriv),
    OVERRIDE(glGetTexParameterxv, getTexParameterxv),
    OVERRIDE(glIsEnabled, isEnabled),
    OVERRIDE(glLightModelx, lightModelx),
    OVERRIDE(glLightModelxv, lightModelxv),
    OVERRIDE(glLightx, lightx),
    OVERRIDE(glLightxv, lightxv),
    OVERRIDE(glLineWidthx, lineWidthx),
    OVERRIDE(glLoadMatrixx, loadMatrixx),
    OVERRIDE(glMapBufferOES, mapBufferOES),
    OVERRIDE(glMaterialx, materialx),
    OVERRIDE(glMaterialxv, materialxv),
    OVERRIDE(glMultMatrixx, multMatrixx),
    OVERRIDE(glMultiDrawArraysEXT, multiDrawArraysEXT),
    OVERRIDE(glMultiDrawElementsEXT, multiDrawElementsEXT),
    OVERRIDE(glMultiTexCoord4x, multiTexCoord4x),
    OVERRIDE(glNormal3x, normal3x),
    OVERRIDE(glNormalPointer, normalPointer),
    OVERRIDE(glOrthof, orthof),
    OVERRIDE(glOrthofOES, orthof),
    OVERRIDE(glOrthox, orthox),
    OVERRIDE(glPixelStorei, pixelStorei),
    OVERRIDE(glPointParameterx, pointParameterx),
    OVERRIDE(glPointParameterxv, pointParameterxv),
    OVERRIDE(glPointSizePointerOES, pointSizePointerOES),
    OVERRIDE(glPointSizex, pointSizex),
    OVERRIDE(glPolygonOffsetx, polygonOffsetx),
    OVERRIDE(glQueryMatrixxOES, queryMatrixxOES),
    OVERRIDE(glRotatex, rotatex),
    OVERRIDE(glSampleCoveragex, sampleCoveragex),
    OVERRIDE(glScalex, scalex),
    OVERRIDE(glTexCoordPointer, texCoordPointer),
    OVERRIDE(glTexEnvx, texEnvx),
    OVERRIDE(glTexEnvxv, texEnvxv),
    OVERRIDE(glTexGenfOES, texGenfOES),
    OVERRIDE(glTexGenfvOES, texGenfvOES),
    OVERRIDE(glTexGeniOES, texGeniOES),
    OVERRIDE(glTexGenivOES, texGenivOES),
    OVERRIDE(glTexGenxOES, texGenxOES),
    OVERRIDE(glTexGenxvOES, texGenxvOES),
    OVERRIDE(glTexImage2D, texImage2D),
    OVERRIDE(glTexParameterfv, texParameterfv),
    OVERRIDE(glTexParameteriv, texParameteriv),
    OVERRIDE(glTexParameterx, texParameterx),
    OVERRIDE(glTexParameterxv, texParameterxv),
    OVERRIDE(glTexSubImage2D, texSubImage2D),
    OVERRIDE(glTranslatex, translatex),
    OVERRIDE(glVertexPointer, vertexPointer),
};

#undef OVERRIDE

} // namespace

void *findOverride(std::string_view name) {
    const auto row = std::ranges::find(table, name, &Override::name);
    return row == std::end(table) ? nullptr : row->function;
}
