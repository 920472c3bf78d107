#include "host/platform/x11/attach.h"

#include <utility>

#include "host/platform/x11/context.h"
#include "host/platform/x11/current.h"
#include "host/platform/x11/glx.h"
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

// A current context is bound again at once. If that fails, the old attachments are restored.
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

// Without a drawable if the host fails.
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

// Whether the window or its child has been destroyed since it was attached.
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
    // The host resizes GLX drawables with their window. Child windows are resized at each flush and size query.
}

void flushBuffer(ContextContainer *container) {
    const auto &attachment = container->attachment;
    auto &connection = container->connection;
    if (attachment.pbuffers && attachment.pbuffers->pixmap) return showPixmap(*container);
    // GLX generates an error for the swap of a pbuffer.
    if (!attachment.view.window) return;
    // Some hosts query the server for the drawable's size and do not check the reply.
    if (connection.isLost()) return clearCurrentContext();
    // The host queried the drawable's size in the previous frame, and the events up to then were read with the reply.
    connection.windows().takeReadEvents();
    // After a failed size query such a renderer allocates by uninitialised values, which may be gigabytes.
    if (connection.isSoftware() && isGone(connection, attachment)) {
        attach(*container, {}, {});
        return;
    }
    const bool isChild = attachment.drawable != attachment.view.window;
    connection.children().show(attachment.view.window, attachment.drawable);
    glx().swapBuffers(connection.display(), attachment.drawable);
    // No other code flushes this connection, and the frame must not wait for the next one.
    connection.flush();
    if (connection.isLost()) return clearCurrentContext();
    if (isChild) connection.windows().readEvents(); // events that resize the child with its parent
}

int32_t bufferAge(ContextContainer *container) {
    auto &connection = container->connection;
    if (!container->attachment.view.window || !connection.hasGlxExtension("GLX_EXT_buffer_age")) return 0;
    unsigned age = 0;
    glx().queryDrawable(connection.display(), container->attachment.drawable, GLX_BACK_BUFFER_AGE_EXT, &age);
    return static_cast<int32_t>(age);
}

} // namespace host::platform::x11
