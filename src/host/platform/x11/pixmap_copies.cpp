#include "host/platform/x11/pixmap_copies.h"

#include <algorithm>

#include <GL/gl.h>
#include <GL/glext.h>

#include "host/platform/x11/context.h"
#include "host/platform/x11/current.h"
#include "host/platform/x11/glx.h"
#include "host/platform/x11/pixel_buffer.h"

namespace host::platform::x11 {

namespace {

struct Size {
    int width = 0;
    int height = 0;
};

Size sizeOf(Display *display, GLXDrawable drawable) {
    unsigned width = 0, height = 0;
    glx().queryDrawable(display, drawable, GLX_WIDTH, &width);
    glx().queryDrawable(display, drawable, GLX_HEIGHT, &height);
    return {static_cast<int>(width), static_cast<int>(height)};
}

void swapNow(Display *display, GLXDrawable drawable) {
    glx().swapBuffers(display, drawable);
    // The application reads the pixmap through its own connection.
    XSync(display, False);
}

// The origin is at the top in X and at the bottom in OpenGL; the common part of both sizes is at the top.
void blit(const Size &from, const Size &to) {
    const auto blitFramebuffer = findGlxFunction<PFNGLBLITFRAMEBUFFERPROC>("glBlitFramebuffer");
    const int width = std::min(from.width, to.width), height = std::min(from.height, to.height);
    blitFramebuffer(0, from.height - height, width, from.height, 0, to.height - height, width, to.height,
                    GL_COLOR_BUFFER_BIT, GL_NEAREST);
}

} // namespace

void showPixmap(ContextContainer &container) {
    if (!container.connection.isLost()) swapNow(container.connection.display(), container.attachment.drawable);
}

// Uses a temporary context, whose state has the initial values.
bool copyToPixmap(ContextContainer *container, PixelBuffer *pixmap) {
    auto &connection = container->connection;
    const GLXDrawable source = container->attachment.drawable;
    if (connection.isLost() || !source) return false;
    Display *display = connection.display();
    const GLXDrawable target = pixmap->pbuffers->bufferFor(connection, container->config);
    if (!target) return false;
    GLXContext copier = glx().createContext(display, container->config.handle, GLX_RGBA_TYPE, nullptr, True);
    auto *binding = saveBinding();
    const bool isBound = copier && glx().makeContextCurrent(display, target, source, copier);
    if (isBound) {
        blit(sizeOf(display, source), sizeOf(display, target));
        swapNow(display, target);
    }
    restoreBinding(binding);
    if (copier) glx().destroyContext(display, copier);
    return isBound;
}

} // namespace host::platform::x11
