#include "host/platform/x11/current.h"

#include <utility>

#include "host/platform/x11/context.h"
#include "host/platform/x11/glx.h"
#include "host/platform/x11/swap_control.h"
#include "host/platform/x11/x_calls.h"

namespace host::platform {

// GLX is queried, since the application's own GLX calls can make any context current.
struct SavedBinding {
    Display *display = nullptr;
    GLXDrawable draw = 0;
    GLXDrawable read = 0;
    GLXContext context = nullptr;
    ContextContainer *container = nullptr; // which the thread still holds; null for a foreign context
};

namespace x11 {

namespace {

// The context that the thread holds. A plain pointer, since threads make contexts current in their exit handlers too.
constinit thread_local ContextContainer *threadContainer __attribute__((tls_model("initial-exec"))) = nullptr;

void setThreadContainer(ContextContainer *container);

// Releases the context of a thread that ends with one current.
struct AtThreadEnd {
    ~AtThreadEnd() { setThreadContainer(nullptr); }
};

constinit thread_local bool isArmed __attribute__((tls_model("initial-exec"))) = false;

void armAtThreadEnd() {
    if (isArmed) return;
    isArmed = true;
    [[maybe_unused]] static thread_local AtThreadEnd atThreadEnd; // its construction registers the destructor
}

void setThreadContainer(ContextContainer *container) {
    if (container == threadContainer) return;
    if (container) {
        armAtThreadEnd();
        hold(*container);
    }
    if (auto *const old = std::exchange(threadContainer, container)) letGo(*old);
}

bool bindWithPlaceholder(ContextContainer &container) {
    Display *display = container.connection.display();
    if (!container.placeholder) {
        constexpr int attributes[] = {GLX_PBUFFER_WIDTH, 1, GLX_PBUFFER_HEIGHT, 1, 0};
        container.placeholder = calls::createPbuffer(display, container.config.handle, attributes);
    }
    const GLXPbuffer placeholder = container.placeholder;
    return placeholder && glx().makeContextCurrent(display, placeholder, placeholder, container.context);
}

bool bind(ContextContainer &container) {
    if (container.connection.isLost() || !canHold(container)) return false;
    const GLXDrawable drawable = container.attachment.drawable;
    const GLXDrawable readDrawable = container.readAttachment.drawable ? container.readAttachment.drawable : drawable;
    for (const Window window : {container.attachment.view.window, container.readAttachment.view.window}) {
        if (window && !container.connection.windows().find(window)) return false;
    }
    if (glx().makeContextCurrent(container.connection.display(), drawable, readDrawable, container.context))
        return true;
    return !drawable && bindWithPlaceholder(container);
}

} // namespace

ContextContainer *currentContext() {
    ContextContainer *container = threadContainer;
    return container && glx().currentContext() == container->context ? container : nullptr;
}

void clearCurrentContext() {
    if (Display *display = glx().currentDisplay()) {
        if (currentContext())
            glx().makeContextCurrent(display, None, None, nullptr);
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
    if (!glx().currentContext()) return nullptr;
    auto *saved = new SavedBinding{glx().currentDisplay(), glx().currentDrawable(), glx().currentReadDrawable(),
                                   glx().currentContext(), currentContext()};
    if (saved->container) threadContainer = nullptr;
    return saved;
}

void restoreBinding(SavedBinding *binding) {
    if (!binding) {
        clearCurrentContext();
        return;
    }
    const auto makeContextCurrent = binding->container ? glx().makeContextCurrent : calls::makeContextCurrent;
    const bool isRestored = makeContextCurrent(binding->display, binding->draw, binding->read, binding->context);
    if (!isRestored) clearCurrentContext();
    setThreadContainer(isRestored ? binding->container : nullptr);
    if (!isRestored && binding->container) letGo(*binding->container);
    delete binding;
}

} // namespace x11

} // namespace host::platform
