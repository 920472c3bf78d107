// Contexts on X11 and what is attached to them. GLX binds a context and its drawable in one call, so what is attached
// waits in the container until the context is bound.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

#include "host/platform/operations.h"
#include "host/platform/x11/connection.h"
#include "host/platform/x11/pixel_buffer.h"

namespace host::platform {

namespace x11 {

// Nothing, a view, or a pixel buffer.
struct Attachment {
    View view;
    std::shared_ptr<Pbuffers> pbuffers;
    GLXDrawable drawable = 0; // the view itself, a child of it, or the pixel buffer for the context's config
};

} // namespace x11

struct ContextContainer {
    x11::Connection &connection;
    const x11::FbConfig &config;
    const GLXContext context;
    std::atomic<int> references = 1; // the owner's, one for each thread that has it current, one for each saved binding

    mutable std::mutex mutex; // guards the rest
    x11::Attachment attachment;
    std::optional<int32_t> swapInterval;
    GLXPbuffer placeholder = 0; // stands in for no drawable on hosts that insist on one
};

namespace x11 {

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share);
void releaseContext(ContextContainer *container);

// Null is allowed. The last reference destroys the context.
void addReference(ContextContainer *container);
void dropReference(ContextContainer *container);

[[nodiscard]] Attachment attachmentOf(const ContextContainer &container);

} // namespace x11

} // namespace host::platform
