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
    // An even word of the thread that has it current, or has saved it as what was; 0 for none. With 1 added once its
    // owner has released it, so that it goes with its holder.
    std::atomic<uintptr_t> holder = 0;

    // Of the holder; without one, of the thread that binds it, which callers let there be one of.
    x11::Attachment attachment;
    std::optional<int32_t> swapInterval;
    GLXPbuffer placeholder = 0; // stands in for no drawable on hosts that insist on one
};

namespace x11 {

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share);
void releaseContext(ContextContainer *container);

// False when another thread holds the context, which may neither be bound nor be given another drawable then.
[[nodiscard]] bool canHold(const ContextContainer &container);
void hold(ContextContainer &container);
// Destroys a context that was released while it was held.
void letGo(ContextContainer &container);

} // namespace x11

} // namespace host::platform
