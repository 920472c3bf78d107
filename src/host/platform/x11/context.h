// Contexts on X11 and what is attached to them. GLX binds a context and its drawable in one call, so what is attached
// waits in the container until the context is bound. One thread at a time holds a context: the one that has it current.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
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
    std::atomic<int> references = 1; // the owner's, the holder's, one for each saved binding
    // A word of the thread that has it current; null for none.
    std::atomic<const void *> holder = nullptr;

    // Of the holder; without one, of the thread that binds it, which callers let there be one of.
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

// False when another thread holds the context, which may neither be bound nor be given another drawable then.
[[nodiscard]] bool canHold(const ContextContainer &container);
// A word that is this thread's for as long as it lives.
[[nodiscard]] const void *threadWord();

} // namespace x11

} // namespace host::platform
