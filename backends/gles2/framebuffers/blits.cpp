// Blits between framebuffers. The host may treat the surface as sRGB although the application's is linear, and has one
// switch for reading and drawing, so blits between the surface and an sRGB image go through a linear image.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/blit.h"
#include "framebuffers/drawn_images.h"

#include <EGL/egl.h>

#include <algorithm>

namespace {

void copy(const Blit &blit, GLbitfield mask) {
    const auto &[from, to, all, filter] = blit;
    hostGl().blitFramebuffer(from.x0, from.y0, from.x1, from.y1, to.x0, to.y0, to.x1, to.y1, mask, filter);
}

// While it lives, the host's sRGB conversion is on or off; then the context's state is restored.
class Conversion {
public:
    Conversion(Framebuffers &framebuffers, bool isOn) : m_framebuffers(framebuffers) { m_framebuffers.force(isOn); }
    ~Conversion() { m_framebuffers.tellHost(); }
    Conversion(const Conversion &) = delete;
    Conversion &operator=(const Conversion &) = delete;

private:
    Framebuffers &m_framebuffers;
};

// A linear image in a framebuffer of its own, which the application cannot see. The destructor restores the bindings.
class LinearImage {
public:
    LinearImage(EsContext &context, GLsizei width, GLsizei height) : m_context(context) {
        const HostGl &gl = hostGl();
        m_texture = context.shared->textures.names.generateHidden(gl.genTextures);
        m_framebuffer = context.framebuffers.names.generateHidden(gl.genFramebuffers);
        GLint bound = 0;
        gl.getIntegerv(GL_TEXTURE_BINDING_2D, &bound);
        gl.bindTexture(GL_TEXTURE_2D, m_texture);
        gl.texStorage2D(GL_TEXTURE_2D, 1, GL_RGBA16F, width, height);
        gl.bindTexture(GL_TEXTURE_2D, static_cast<GLuint>(bound));
    }
    ~LinearImage() {
        const HostGl &gl = hostGl();
        gl.bindFramebuffer(GL_READ_FRAMEBUFFER, m_context.framebuffers.read());
        gl.bindFramebuffer(GL_DRAW_FRAMEBUFFER, m_context.framebuffers.drawn());
        m_context.framebuffers.names.forgetHidden(m_framebuffer);
        m_context.shared->textures.names.forgetHidden(m_texture);
        gl.deleteFramebuffers(1, &m_framebuffer);
        gl.deleteTextures(1, &m_texture);
    }
    LinearImage(const LinearImage &) = delete;
    LinearImage &operator=(const LinearImage &) = delete;

    void drawTo() const {
        const HostGl &gl = hostGl();
        gl.bindFramebuffer(GL_DRAW_FRAMEBUFFER, m_framebuffer);
        gl.framebufferTexture2D(GL_DRAW_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_texture, 0);
    }
    void readFrom() const {
        hostGl().bindFramebuffer(GL_READ_FRAMEBUFFER, m_framebuffer);
        hostGl().bindFramebuffer(GL_DRAW_FRAMEBUFFER, m_context.framebuffers.drawn());
    }

private:
    EsContext &m_context;
    GLuint m_texture = 0;
    GLuint m_framebuffer = 0;
};

struct Size {
    GLint width, height;
};

// The size of the read image; if it is unknown, the size that the blit covers.
Size sizeRead(const std::optional<AttachedImage> &image, const Rectangle &from) {
    if (image && image->width > 0) return {image->width, image->height};
    Size size = {0, 0};
    EGLDisplay const display = eglGetCurrentDisplay();
    EGLSurface const surface = eglGetCurrentSurface(EGL_READ);
    if (!image && surface != EGL_NO_SURFACE) {
        eglQuerySurface(display, surface, EGL_WIDTH, &size.width);
        eglQuerySurface(display, surface, EGL_HEIGHT, &size.height);
    }
    if (size.width > 0 && size.height > 0) return size;
    return {std::max({from.x0, from.x1, 1}), std::max({from.y0, from.y1, 1})};
}

// The first blit copies the whole image to the same place, so that the second one sees the original borders.
void copyThroughLinear(EsContext &context, const Blit &blit, const std::optional<AttachedImage> &read) {
    const HostGl &gl = hostGl();
    const Size size = sizeRead(read, blit.from);
    const LinearImage image(context, size.width, size.height);
    const bool isScissored = gl.isEnabled(GL_SCISSOR_TEST);
    {
        const Conversion conversion(context.framebuffers, context.framebuffers.read() != 0);
        image.drawTo();
        gl.disable(GL_SCISSOR_TEST);
        const Rectangle whole = {0, 0, size.width, size.height};
        copy({whole, whole, GL_COLOR_BUFFER_BIT, GL_NEAREST}, GL_COLOR_BUFFER_BIT);
        if (isScissored) gl.enable(GL_SCISSOR_TEST);
    }
    const Conversion conversion(context.framebuffers, context.framebuffers.drawn() != 0);
    image.readFrom();
    copy(blit, GL_COLOR_BUFFER_BIT);
}

// Blits colours between the linear surface and an image.
void copyColors(EsContext &context, const Blit &blit) {
    const auto read = imageRead(context);
    const bool isConverted =
        (read && read->isSrgb) || std::ranges::any_of(imagesDrawn(context), &AttachedImage::isSrgb);
    if (isConverted) return copyThroughLinear(context, blit, read);
    const Conversion conversion(context.framebuffers, false);
    copy(blit, GL_COLOR_BUFFER_BIT);
}

bool areComplete() {
    const auto isComplete = [](GLenum target) {
        return hostGl().checkFramebufferStatus(target) == GL_FRAMEBUFFER_COMPLETE;
    };
    return isComplete(GL_READ_FRAMEBUFFER) && isComplete(GL_DRAW_FRAMEBUFFER);
}

} // namespace

namespace overrides {

void GL_APIENTRY blitFramebuffer(GLint srcX0, GLint srcY0, GLint srcX1, GLint srcY1, GLint dstX0, GLint dstY0,
                                 GLint dstX1, GLint dstY1, GLbitfield mask, GLenum filter) {
    const Blit blit = {{srcX0, srcY0, srcX1, srcY1}, {dstX0, dstY0, dstX1, dstY1}, mask, filter};
    EsContext *const context = EsContext::current();
    // The host raises the error.
    if (!context || !areComplete()) return copy(blit, mask);
    if (isRefused(*context, blit)) return context->raise(GL_INVALID_OPERATION);
    const Framebuffers &framebuffers = context->framebuffers;
    const bool isWithSurface = (framebuffers.read() == 0) != (framebuffers.drawn() == 0);
    const bool mayDiffer = isWithSurface && !framebuffers.isSurfaceSrgb() && framebuffers.mayWriteSrgb();
    constexpr GLbitfield all = GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT;
    const bool isGood = (mask & ~all) == 0 && (filter == GL_NEAREST || filter == GL_LINEAR);
    if (!mayDiffer || !isGood || !(mask & GL_COLOR_BUFFER_BIT)) return copy(blit, mask);
    if (mask != GL_COLOR_BUFFER_BIT) copy(blit, mask & ~GLbitfield(GL_COLOR_BUFFER_BIT));
    copyColors(*context, blit);
}

} // namespace overrides
