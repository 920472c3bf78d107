#include "host/host_context.h"

#include <map>
#include <mutex>

#include "host/pixel_format.h"

namespace {

using host::platform::ContextContainer;
using host::platform::NativeObject;
using host::platform::operations;

// The contexts that live, by container. Never destroyed, since applications swap in their exit handlers too.
struct LiveContexts {
    std::mutex mutex;
    std::map<ContextContainer *, glove::GLContext *> byContainer;
};

LiveContexts &liveContexts() {
    static auto *contexts = new LiveContexts;
    return *contexts;
}

thread_local ContextContainer *threadHostContext = nullptr;

bool attach(ContextContainer *container, const NativeObject &native) {
    if (native.isPixelBuffer()) return operations.setPixelBuffer(container, native.pixelBuffer);
    if (!operations.setView(container, native.view)) return false;
    // Once more at every bind, and never removed: each registration makes its own update when the frame changes.
    operations.observeViewFrame(container, native.view);
    return true;
}

bool bindHostContext(ContextContainer *container, const NativeObject &native) {
    if (!container) {
        operations.clearCurrentContext();
        return true;
    }
    // Without a surface the context is detached and not made current: what was current stays. Callers rely on it.
    if (native.isNull()) return operations.setView(container, {});
    return attach(container, native) && host::makeContainerCurrent(container);
}

} // namespace

namespace glove {

GLContext::GLContext(ContextContainer *container) : m_container(container) {
    if (!m_container) return;
    auto &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    live.byContainer[m_container] = this;
}

GLContext::~GLContext() {
    if (!m_container) return;
    {
        auto &live = liveContexts();
        const std::lock_guard lock(live.mutex);
        live.byContainer.erase(m_container);
    }
    operations.releaseContext(m_container);
}

} // namespace glove

namespace host {

std::unique_ptr<HostContextHandle> createHostContext(const HostContextRequest &request) {
    ContextContainer *container = nullptr;
    if (request.format) {
        // The derived format is never released: contexts may outlive whoever would know when.
        const auto *derived = deriveContextPixelFormat(request.format, request.legacy == 1);
        auto *share = request.share ? request.share->container() : nullptr;
        if (derived) container = operations.createContext(derived, share);
    }
    return std::make_unique<HostContextHandle>(HostContextHandle{std::make_shared<glove::GLContext>(container)});
}

bool makeHostContextCurrent(const HostContextHandle *hostContext, const std::weak_ptr<glove::ISurface> &surface) {
    if (!hostContext) {
        const bool isCleared = bindHostContext(nullptr, {});
        setCurrentHostContext(nullptr);
        return isCleared;
    }
    const auto locked = surface.lock();
    auto *container = hostContext->context->container();
    if (!bindHostContext(container, locked ? locked->nativeHandle() : NativeObject{})) return false;
    setCurrentHostContext(container);
    return true;
}

void setHostSwapInterval(const HostContextHandle *hostContext, int32_t interval) {
    if (!hostContext || !hostContext->context->container()) return;
    operations.setSwapInterval(hostContext->context->container(), interval);
}

ContextContainer *currentHostContext() {
    return threadHostContext;
}

std::shared_ptr<glove::GLContext> lockCurrentHostContext() {
    auto &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    const auto found = live.byContainer.find(threadHostContext);
    return found == live.byContainer.end() ? nullptr : found->second->weak_from_this().lock();
}

bool makeContainerCurrent(ContextContainer *container) {
    if (!container) {
        operations.clearCurrentContext();
        return true;
    }
    return operations.currentContext() == container || operations.makeCurrent(container);
}

void setCurrentHostContext(ContextContainer *container) {
    threadHostContext = container;
}

} // namespace host
