#include "host/platform/x11/attach.h"

#include <utility>

#include "host/platform/x11/context.h"
#include "host/platform/x11/current.h"
#include "host/platform/x11/pixel_format.h"
#include "host/platform/x11/pixmap_copies.h"

namespace host::platform::x11 {

namespace {

// None when the view does not exist or cannot be drawn to.
GLXDrawable drawableFor(ContextContainer &container, const View &view) {
    auto &connection = container.connection;
    const auto facts = connection.windowFacts(view);
    if (!facts || !facts->canBeDrawnTo) return None;
    const auto &visual = (view.format ? view.format->config : container.config).visual;
    if (!visual.visualid) return None;
    if (facts->visual == visual.visualid) return view.window;
    return connection.children().childOf(view.window, visual, facts->width, facts->height);
}

// A current context is bound anew at once; where that fails, everything goes back to what it was.
bool attach(ContextContainer &container, Attachment draw, Attachment read) {
    if (!canHold(container)) return false;
    std::swap(container.attachment, draw);
    std::swap(container.readAttachment, read);
    const bool isAnother =
        container.attachment.drawable != draw.drawable || container.readAttachment.drawable != read.drawable;
    if (!isAnother || currentContext() != &container || makeCurrent(&container)) return true;
    container.attachment = std::move(draw);
    container.readAttachment = std::move(read);
    makeCurrent(&container);
    return false;
}

// Nothing where the host fails.
Attachment attachmentOf(ContextContainer &container, const NativeObject &object) {
    if (!object.isPixelBuffer()) {
        return {.view = object.view, .pbuffers = nullptr, .drawable = drawableFor(container, object.view)};
    }
    if (container.connection.isLost()) return {};
    const auto &pbuffers = object.pixelBuffer->pbuffers;
    return {.view = {}, .pbuffers = pbuffers, .drawable = pbuffers->bufferFor(container.connection, container.config)};
}

bool attachObject(ContextContainer &container, const NativeObject &object) {
    Attachment read = std::exchange(container.nextReadAttachment, {});
    if (object.isNull()) return attach(container, {}, {});
    Attachment draw = attachmentOf(container, object);
    return draw.drawable && attach(container, std::move(draw), std::move(read));
}

// The window or its child has gone since it was attached.
bool isGone(Connection &connection, const Attachment &attachment) {
    const Window window = attachment.view.window;
    if (!connection.windows().find(window)) return true;
    return attachment.drawable != window && !connection.children().has(attachment.drawable);
}

} // namespace

bool setView(ContextContainer *container, const View &view) {
    return attachObject(*container, {view, nullptr});
}

View view(const ContextContainer *container) {
    return container->attachment.view;
}

bool setPixelBuffer(ContextContainer *container, PixelBuffer *buffer) {
    const auto &read = container->readAttachment.drawable, &nextRead = container->nextReadAttachment.drawable;
    const bool isAttached = buffer && container->attachment.pbuffers == buffer->pbuffers && !read && !nextRead;
    if (isAttached && !container->connection.isLost()) return canHold(*container);
    return attachObject(*container, {{}, buffer});
}

bool setReadObject(ContextContainer *container, const NativeObject &object) {
    if (!canHold(*container)) return false;
    container->nextReadAttachment = attachmentOf(*container, object);
    return container->nextReadAttachment.drawable != None;
}

void observeViewFrame(ContextContainer *, const View &) {
    // GLX drawables follow their window by themselves, and child windows at each flush and size query.
}

void flushBuffer(ContextContainer *container) {
    const auto &attachment = container->attachment;
    auto &connection = container->connection;
    if (attachment.pbuffers && attachment.pbuffers->pixmap) return showPixmap(*container);
    // GLX answers a swap of a pixel buffer with an error.
    if (!attachment.view.window) return;
    // Hosts would go on asking the server for the size of the drawable, and not look whether it answers.
    if (connection.isLost()) return clearCurrentContext();
    // The frame before has asked the server for the drawable's size, and with the answer came all events.
    connection.windows().takeReadEvents();
    // When it draws after a swap, such a renderer allocates by whatever size is left on its stack: gigabytes at times.
    if (connection.isSoftware() && isGone(connection, attachment)) {
        attach(*container, {}, {});
        return;
    }
    const bool isChild = attachment.drawable != attachment.view.window;
    connection.children().show(attachment.view.window, attachment.drawable);
    glXSwapBuffers(connection.display(), attachment.drawable);
    // Nobody else ever flushes this connection; a frame must not wait in its buffer for the next one.
    connection.flush();
    if (connection.isLost()) return clearCurrentContext();
    if (isChild) connection.windows().readEvents(); // which bring a child to its parent's size
}

int32_t bufferAge(ContextContainer *container) {
    auto &connection = container->connection;
    if (!container->attachment.view.window || !connection.hasGlxExtension("GLX_EXT_buffer_age")) return 0;
    unsigned age = 0;
    glXQueryDrawable(connection.display(), container->attachment.drawable, GLX_BACK_BUFFER_AGE_EXT, &age);
    return static_cast<int32_t>(age);
}

} // namespace host::platform::x11
