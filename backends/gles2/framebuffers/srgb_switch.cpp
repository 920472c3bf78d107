// The application's switch for sRGB writes, which is set on the host only while the draw framebuffer has that colour
// space.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace {

// The current context, if cap is GL_FRAMEBUFFER_SRGB_EXT; otherwise null.
EsContext *switched(GLenum cap) {
    return cap == GL_FRAMEBUFFER_SRGB_EXT ? EsContext::current() : nullptr;
}

} // namespace

namespace overrides {

void GL_APIENTRY enable(GLenum cap) {
    if (EsContext *const context = switched(cap)) return context->framebuffers.setMayWriteSrgb(true);
    hostGl().enable(cap);
}

void GL_APIENTRY disable(GLenum cap) {
    if (EsContext *const context = switched(cap)) return context->framebuffers.setMayWriteSrgb(false);
    hostGl().disable(cap);
}

GLboolean GL_APIENTRY isEnabled(GLenum cap) {
    if (const EsContext *const context = switched(cap)) return context->framebuffers.mayWriteSrgb();
    return hostGl().isEnabled(cap);
}

} // namespace overrides
