// Contexts on X11 and their drawables. GLX binds a context and its drawable in one call, so the container stores the
// attached drawable until the context is bound. One thread at a time holds a context: the one that has it current.
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

// The drawable of a context: none, a view, or a pixel buffer.
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
    // An even id of the thread that has it current, or has saved it as its previous binding; 0 for none. 1 is added
    // once the owner has released it, so that it is destroyed when its holder releases it.
    std::atomic<uintptr_t> holder = 0;

    // Used by the holder; without one, by the thread that binds it; callers ensure that there is only one.
    x11::Attachment attachment;
    std::optional<int32_t> swapInterval;
    GLXPbuffer placeholder = 0;          // replaces no drawable on hosts that require one
    x11::Attachment readAttachment = {}; // without a drawable unless it differs
    x11::Attachment nextReadAttachment = {};
};

namespace x11 {

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share);
void releaseContext(ContextContainer *container);

// False when another thread holds the context; it can then neither be bound nor be attached to another drawable.
[[nodiscard]] bool canHold(const ContextContainer &container);
void hold(ContextContainer &container);
// Destroys a context that was released while it was held.
void letGo(ContextContainer &container);

} // namespace x11

} // namespace host::platform
