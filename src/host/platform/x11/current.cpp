#include "host/platform/x11/current.h"

#include <utility>

#include "host/platform/x11/context.h"
#include "host/platform/x11/swap_control.h"
#include "host/platform/x11/x_calls.h"

namespace host::platform {

// The application's own GLX calls can make anything current, so GLX is asked, and not only we.
struct SavedBinding {
    Display *display = nullptr;
    GLXDrawable draw = 0;
    GLXDrawable read = 0;
    GLXContext context = nullptr;
    ContextContainer *container = nullptr; // holds a reference; null when the context is not ours
};

namespace x11 {

namespace {

// Holds a reference, so that a context that was released while current can still be compared and followed. Plain,
// since threads make contexts current in their exit handlers too.
thread_local ContextContainer *threadContainer = nullptr;

// Drops the reference of a thread that ends with a context current.
struct AtThreadEnd {
    bool isArmed = false;
    ~AtThreadEnd() { dropReference(std::exchange(threadContainer, nullptr)); }
};

thread_local AtThreadEnd atThreadEnd;

void setThreadContainer(ContextContainer *container) {
    if (container) atThreadEnd.isArmed = true; // the first use in a thread is what arms it
    addReference(container);
    dropReference(std::exchange(threadContainer, container));
}

bool bindWithPlaceholder(ContextContainer &container) {
    GLXPbuffer placeholder = 0;
    {
        const std::lock_guard lock(container.mutex);
        if (!container.placeholder) {
            constexpr int attributes[] = {GLX_PBUFFER_WIDTH, 1, GLX_PBUFFER_HEIGHT, 1, 0};
            container.placeholder =
                calls::createPbuffer(container.connection.display(), container.config.handle, attributes);
        }
        placeholder = container.placeholder;
    }
    return placeholder &&
           glXMakeContextCurrent(container.connection.display(), placeholder, placeholder, container.context);
}

bool bind(ContextContainer &container) {
    if (container.connection.isLost()) return false;
    const auto attachment = attachmentOf(container);
    const GLXDrawable drawable = attachment.drawable;
    if (attachment.view.window && !container.connection.hasWindow(drawable)) return false;
    if (glXMakeContextCurrent(container.connection.display(), drawable, drawable, container.context)) return true;
    return !drawable && bindWithPlaceholder(container);
}

} // namespace

ContextContainer *currentContext() {
    ContextContainer *container = threadContainer;
    return container && glXGetCurrentContext() == container->context ? container : nullptr;
}

void clearCurrentContext() {
    if (Display *display = glXGetCurrentDisplay()) {
        if (currentContext())
            glXMakeContextCurrent(display, None, None, nullptr);
        else
            calls::makeContextCurrent(display, None, None, nullptr);
    }
    setThreadContainer(nullptr);
}

bool makeCurrent(ContextContainer *container) {
    if (!bind(*container)) return false;
    setThreadContainer(container);
    applySwapInterval(*container);
    return true;
}

SavedBinding *saveBinding() {
    if (!glXGetCurrentContext()) return nullptr;
    auto *saved = new SavedBinding{glXGetCurrentDisplay(), glXGetCurrentDrawable(), glXGetCurrentReadDrawable(),
                                   glXGetCurrentContext(), currentContext()};
    addReference(saved->container);
    return saved;
}

void restoreBinding(SavedBinding *binding) {
    if (!binding) {
        clearCurrentContext();
        return;
    }
    const auto makeContextCurrent = binding->container ? glXMakeContextCurrent : calls::makeContextCurrent;
    if (makeContextCurrent(binding->display, binding->draw, binding->read, binding->context))
        setThreadContainer(binding->container);
    else
        clearCurrentContext();
    dropReference(binding->container);
    delete binding;
}

} // namespace x11

} // namespace host::platform
