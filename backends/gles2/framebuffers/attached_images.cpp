#include "framebuffers/attached_images.h"

#include <algorithm>

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"

namespace {

constexpr GLenum formatsWithoutSize[] = {GL_RED, GL_RG, GL_RGB, GL_RGBA, GL_BGRA_EXT, GL_SRGB_ALPHA_EXT};

// The host's format may be unsized too.
GLenum sizedFormat(GLenum format, GLint redBits) {
    if (format == GL_RGBA) return redBits == 4 ? GL_RGBA4 : redBits == 5 ? GL_RGB5_A1 : GL_RGBA8;
    if (format == GL_RGB) return redBits == 5 ? GL_RGB565 : GL_RGB8;
    if (format == GL_RG) return GL_RG8;
    return format == GL_RED ? GL_R8 : format;
}

void askTexture(const EsContext &context, AttachedImage &image) {
    const HostGl &gl = hostGl();
    if (!gl.isTexture(image.hostName)) return;
    const auto ask = [&](GLenum pname) {
        GLint value = 0;
        gl.getTextureLevelParameteriv(image.hostName, image.level, pname, &value);
        return value;
    };
    const auto known = context.shared->textures.swizzles.find(image.hostName);
    const bool isKnown = known && known->internal != GL_NONE;
    image.hostInternal = static_cast<GLenum>(ask(GL_TEXTURE_INTERNAL_FORMAT));
    image.internal = isKnown ? known->internal : image.hostInternal;
    const bool hasSize = std::ranges::find(formatsWithoutSize, image.internal) == std::end(formatsWithoutSize);
    image.sized = hasSize ? image.internal : sizedFormat(image.hostInternal, ask(GL_TEXTURE_RED_SIZE));
    image.width = ask(GL_TEXTURE_WIDTH);
    image.height = ask(GL_TEXTURE_HEIGHT);
    image.samples = ask(GL_TEXTURE_SAMPLES);
}

void askRenderbuffer(AttachedImage &image) {
    const HostGl &gl = hostGl();
    if (!gl.isRenderbuffer(image.hostName)) return;
    const auto ask = [&](GLenum pname) {
        GLint value = 0;
        gl.getNamedRenderbufferParameteriv(image.hostName, pname, &value);
        return value;
    };
    image.sized = image.internal = image.hostInternal = static_cast<GLenum>(ask(GL_RENDERBUFFER_INTERNAL_FORMAT));
    image.width = ask(GL_RENDERBUFFER_WIDTH);
    image.height = ask(GL_RENDERBUFFER_HEIGHT);
    image.samples = ask(GL_RENDERBUFFER_SAMPLES);
}

} // namespace

std::optional<AttachedImage> attachedImage(const EsContext &context, GLenum target, GLenum attachment) {
    if (!context.host.carries(45, "GL_ARB_direct_state_access")) return std::nullopt;
    const auto ask = [&](GLenum pname) {
        GLint value = 0;
        hostGl().getFramebufferAttachmentParameteriv(target, attachment, pname, &value);
        return value;
    };
    AttachedImage image;
    image.kind = static_cast<GLenum>(ask(GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE));
    if (image.kind == GL_NONE) return image;
    image.hostName = static_cast<GLuint>(ask(GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME));
    image.isSrgb = ask(GL_FRAMEBUFFER_ATTACHMENT_COLOR_ENCODING) == GL_SRGB;
    if (image.kind == GL_RENDERBUFFER) {
        askRenderbuffer(image);
        return image;
    }
    image.level = ask(GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_LEVEL);
    const GLint face = ask(GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_CUBE_MAP_FACE);
    image.layer = face ? face : ask(GL_FRAMEBUFFER_ATTACHMENT_TEXTURE_LAYER);
    askTexture(context, image);
    return image;
}
