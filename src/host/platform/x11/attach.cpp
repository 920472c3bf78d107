#include "host/platform/x11/attach.h"

#include <utility>

#include "host/platform/x11/context.h"
#include "host/platform/x11/current.h"

namespace host::platform::x11 {

namespace {

// None when the view is gone or cannot be drawn to.
GLXDrawable drawableFor(ContextContainer &container, const View &view) {
    auto &connection = container.connection;
    XWindowAttributes attributes{};
    if (!connection.windowAttributes(view, attributes) || attributes.c_class != InputOutput) return None;
    if (XScreenNumberOfScreen(attributes.screen) != connection.screen()) return None;
    const auto &visual = container.config.visual;
    if (XVisualIDFromVisual(attributes.visual) == visual.visualid) return view.window;
    return connection.children().childOf(view.window, visual);
}

Attachment exchange(ContextContainer &container, Attachment attachment) {
    const std::lock_guard lock(container.mutex);
    return std::exchange(container.attachment, std::move(attachment));
}

// A current context is bound anew at once; where that fails, everything goes back to what it was.
bool attach(ContextContainer &container, Attachment attachment) {
    const GLXDrawable drawable = attachment.drawable;
    auto previous = exchange(container, std::move(attachment));
    if (previous.drawable == drawable || currentContext() != &container || makeCurrent(&container)) return true;
    exchange(container, std::move(previous));
    makeCurrent(&container);
    return false;
}

} // namespace

bool setView(ContextContainer *container, const View &view) {
    if (!view.window) return attach(*container, {});
    const GLXDrawable drawable = drawableFor(*container, view);
    return drawable && attach(*container, {.view = view, .pbuffers = nullptr, .drawable = drawable});
}

View view(const ContextContainer *container) {
    return attachmentOf(*container).view;
}

bool setPixelBuffer(ContextContainer *container, PixelBuffer *buffer) {
    if (!buffer) return attach(*container, {});
    if (container->connection.isLost()) return false;
    const GLXDrawable drawable = buffer->pbuffers->bufferFor(container->connection, container->config);
    return drawable && attach(*container, {.view = {}, .pbuffers = buffer->pbuffers, .drawable = drawable});
}

void observeViewFrame(ContextContainer *, const View &) {
    // GLX drawables follow their window by themselves, and child windows at each flush and size query.
}

void flushBuffer(ContextContainer *container) {
    const auto attachment = attachmentOf(*container);
    auto &connection = container->connection;
    // GLX answers a swap of a pixel buffer with an error.
    if (!attachment.view.window || connection.isLost()) return;
    // When it draws after a swap, such a renderer allocates by whatever size is left on its stack: gigabytes at times.
    if (connection.isSoftware() && !connection.hasWindow(attachment.drawable)) {
        attach(*container, {});
        return;
    }
    connection.children().show(attachment.view.window, attachment.drawable);
    glXSwapBuffers(connection.display(), attachment.drawable);
    // Nobody else ever flushes this connection; a frame must not wait in its buffer for the next one.
    XFlush(connection.display());
    if (attachment.drawable != attachment.view.window) connection.children().follow(attachment.view.window);
}

} // namespace host::platform::x11
