// Framebuffer completeness: ES rejects formats that the host can draw to, and ES 2 rejects images of different sizes.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/attached_images.h"
#include "framebuffers/drawn_formats.h"

#include <vector>

namespace {

constexpr GLenum incompleteDimensions = 0x8CD9; // GL_FRAMEBUFFER_INCOMPLETE_DIMENSIONS

// The attached images.
std::vector<AttachedImage> attachedImages(const EsContext &context, GLenum target) {
    GLint colorCount = 0;
    hostGl().getIntegerv(GL_MAX_COLOR_ATTACHMENTS, &colorCount);
    std::vector<AttachedImage> images;
    const auto add = [&](GLenum attachment) {
        const auto image = attachedImage(context, target, attachment);
        if (image && image->kind != GL_NONE) images.push_back(*image);
    };
    for (GLint index = 0; index < colorCount; ++index)
        add(GL_COLOR_ATTACHMENT0 + static_cast<GLenum>(index));
    add(GL_DEPTH_ATTACHMENT);
    add(GL_STENCIL_ATTACHMENT);
    return images;
}

bool isDrawn(const AttachedImage &image) {
    const bool hasSize = image.internal != GL_RGB && image.internal != GL_RGBA;
    // Ten-bit images are color-renderable only if the application requested a sized format.
    const bool isTenBits = image.hostInternal == GL_RGB10_EXT || image.hostInternal == GL_RGB10_A2;
    return isDrawnFormat(image.internal) && (hasSize || !isTenBits);
}

GLenum statusOf(const EsContext &context, GLenum target) {
    std::vector<AttachedImage> images = attachedImages(context, target);
    std::erase_if(images, [](const AttachedImage &image) { return image.width == 0; });
    for (const AttachedImage &image : images) {
        if (!isDrawn(image)) return GL_FRAMEBUFFER_INCOMPLETE_ATTACHMENT;
        const bool isOfOneSize = image.width == images[0].width && image.height == images[0].height;
        if (context.major < 3 && !isOfOneSize) return incompleteDimensions;
    }
    return GL_FRAMEBUFFER_COMPLETE;
}

} // namespace

namespace overrides {

GLenum GL_APIENTRY checkFramebufferStatus(GLenum target) {
    const GLenum status = hostGl().checkFramebufferStatus(target);
    const EsContext *const context = EsContext::current();
    if (!context) return status;
    const bool isSurface = context->framebuffers.bound(target) == 0;
    if (isSurface) return status;
    if (status == GL_FRAMEBUFFER_COMPLETE) return statusOf(*context, target);
    if (status != GL_FRAMEBUFFER_UNSUPPORTED) return status;
    // Both reject the image, but ES has another status for it.
    return statusOf(*context, target) == GL_FRAMEBUFFER_COMPLETE ? status : GL_FRAMEBUFFER_INCOMPLETE_ATTACHMENT;
}

} // namespace overrides
