// EXT_discard_framebuffer: contents of a framebuffer that are no longer needed.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>

namespace {

bool isOfSurface(GLenum attachment) {
    return attachment == GL_COLOR_EXT || attachment == GL_DEPTH_EXT || attachment == GL_STENCIL_EXT;
}

bool isOfObject(GLenum attachment) {
    const bool isColor = attachment >= GL_COLOR_ATTACHMENT0 && attachment <= GL_COLOR_ATTACHMENT31;
    return isColor || attachment == GL_DEPTH_ATTACHMENT || attachment == GL_STENCIL_ATTACHMENT;
}

} // namespace

namespace overrides {

void GL_APIENTRY discardFramebuffer(GLenum target, GLsizei count, const GLenum *attachments) {
    EsContext *const context = EsContext::current();
    if (context && count > 0 && attachments) {
        const bool isSurface = context->framebuffers.bound(target) == 0;
        const bool isGood = std::all_of(attachments, attachments + count, isSurface ? isOfSurface : isOfObject);
        if (!isGood) return context->raise(GL_INVALID_ENUM);
    }
    hostGl().invalidateFramebuffer(target, count, attachments);
}

} // namespace overrides
