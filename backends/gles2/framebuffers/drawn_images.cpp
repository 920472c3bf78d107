#include "framebuffers/drawn_images.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"

namespace {

GLint askHost(GLenum pname) {
    GLint value = 0;
    hostGl().getIntegerv(pname, &value);
    return value;
}

} // namespace

std::optional<AttachedImage> imageRead(const EsContext &context) {
    const auto buffer = static_cast<GLenum>(askHost(GL_READ_BUFFER));
    if (context.framebuffers.read() == 0 || buffer == GL_NONE) return std::nullopt;
    return attachedImage(context, GL_READ_FRAMEBUFFER, buffer);
}

std::vector<AttachedImage> imagesDrawn(const EsContext &context) {
    std::vector<AttachedImage> images;
    if (context.framebuffers.drawn() == 0) return images;
    const GLint count = askHost(GL_MAX_DRAW_BUFFERS);
    for (GLint index = 0; index < count; ++index) {
        const auto buffer = static_cast<GLenum>(askHost(GL_DRAW_BUFFER0 + static_cast<GLenum>(index)));
        if (buffer == GL_NONE) continue;
        const auto image = attachedImage(context, GL_DRAW_FRAMEBUFFER, buffer);
        if (image && image->kind != GL_NONE) images.push_back(*image);
    }
    return images;
}
