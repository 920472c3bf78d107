// ES rejects blits to multisampled images, between some different formats, and of an image to itself.
#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"
#include "framebuffers/blit.h"
#include "framebuffers/drawn_images.h"

namespace {

bool isThere(const std::optional<AttachedImage> &image) {
    return image && image->kind != GL_NONE;
}

// Multisampled images can only be blitted to the same place in the same format.
bool isPairRefused(const std::optional<AttachedImage> &from, const std::optional<AttachedImage> &to, const Blit &blit) {
    if (!isThere(from)) return false;
    if (from->samples > 0 && blit.from != blit.to) return true;
    if (!isThere(to)) return false;
    return from->isSameAs(*to) || (from->samples > 0 && from->sized != to->sized);
}

bool isDepthRefused(const EsContext &context, GLenum attachment, const Blit &blit) {
    if (context.framebuffers.read() == 0 || context.framebuffers.drawn() == 0) return false;
    const auto from = attachedImage(context, GL_READ_FRAMEBUFFER, attachment);
    const auto to = attachedImage(context, GL_DRAW_FRAMEBUFFER, attachment);
    const bool differs = isThere(from) && isThere(to) && from->internal != to->internal;
    return differs || isPairRefused(from, to, blit);
}

bool isColorRefused(const EsContext &context, const Blit &blit) {
    const auto from = imageRead(context);
    if (isPairRefused(from, std::nullopt, blit)) return true;
    for (const AttachedImage &to : imagesDrawn(context))
        if (isPairRefused(from, to, blit)) return true;
    return false;
}

} // namespace

bool isRefused(const EsContext &context, const Blit &blit) {
    GLint samplesDrawn = 0;
    hostGl().getIntegerv(GL_SAMPLES, &samplesDrawn);
    if (samplesDrawn > 0) return true;
    if ((blit.mask & GL_DEPTH_BUFFER_BIT) && isDepthRefused(context, GL_DEPTH_ATTACHMENT, blit)) return true;
    if ((blit.mask & GL_STENCIL_BUFFER_BIT) && isDepthRefused(context, GL_STENCIL_ATTACHMENT, blit)) return true;
    return (blit.mask & GL_COLOR_BUFFER_BIT) && isColorRefused(context, blit);
}
