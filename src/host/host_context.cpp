#include "host/host_context.h"

#include <map>
#include <mutex>

#include "host/pixel_format.h"

namespace {

using host::platform::ContextContainer;
using host::platform::NativeObject;
using host::platform::operations;

// The live contexts. Never destroyed, since applications may swap in their exit handlers.
struct LiveContexts {
    std::mutex mutex;
    std::map<uint64_t, std::weak_ptr<glove::GLContext>> byNumber;
    uint64_t lastNumber = 0;
};

LiveContexts &liveContexts() {
    static auto *contexts = new LiveContexts;
    return *contexts;
}

constinit thread_local uint64_t threadHostContext __attribute__((tls_model("initial-exec"))) = 0;

bool attach(ContextContainer *container, const NativeObject &native, const NativeObject &read) {
    if (!read.isNull() && !operations.setReadObject(container, read)) return false;
    if (native.isPixelBuffer()) return operations.setPixelBuffer(container, native.pixelBuffer);
    if (!operations.setView(container, native.view)) return false;
    // Registered again at every bind and never removed: each registration updates the context once when the frame
    // changes.
    operations.observeViewFrame(container, native.view);
    return true;
}

host::HostBinding bindHostContext(const glove::GLContext *context, const NativeObject &native,
                                  const NativeObject &read) {
    using host::HostBinding;
    auto *container = context ? context->container() : nullptr;
    if (!container) {
        operations.clearCurrentContext();
        return HostBinding::current;
    }
    if (native.isNull()) return operations.setView(container, {}) ? HostBinding::detached : HostBinding::failed;
    const bool isCurrent = attach(container, native, read) && host::makeHostContextCurrentAsIs(*context);
    return isCurrent ? HostBinding::current : HostBinding::failed;
}

} // namespace

namespace glove {

std::shared_ptr<GLContext> GLContext::create(ContextContainer *container) {
    if (!container) return std::make_shared<GLContext>(nullptr, 0);
    auto &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    auto context = std::make_shared<GLContext>(container, ++live.lastNumber);
    live.byNumber[context->number()] = context;
    return context;
}

GLContext::GLContext(ContextContainer *container, uint64_t number) : m_container(container), m_number(number) {}

GLContext::~GLContext() {
    if (!m_container) return;
    {
        auto &live = liveContexts();
        const std::lock_guard lock(live.mutex);
        live.byNumber.erase(m_number);
    }
    operations.releaseContext(m_container);
}

} // namespace glove

namespace host {

std::unique_ptr<HostContextHandle> createHostContext(const HostContextRequest &request) {
    ContextContainer *container = nullptr;
    if (request.format) {
        // The derived format is never released: contexts may use it until the process ends.
        const auto *derived = deriveContextPixelFormat(request.format, request.legacy == 1, request.robustness,
                                                       request.desktop ? &*request.desktop : nullptr);
        auto *share = request.share ? request.share->container() : nullptr;
        if (derived) container = operations.createContext(derived, share);
    }
    return std::make_unique<HostContextHandle>(HostContextHandle{glove::GLContext::create(container)});
}

HostBinding makeHostContextCurrent(const HostContextHandle *hostContext, const glove::ISurface *surface,
                                   const glove::ISurface *read) {
    const auto *context = hostContext ? hostContext->context.get() : nullptr;
    const auto binding = bindHostContext(context, context && surface ? surface->nativeHandle() : NativeObject{},
                                         read ? read->nativeHandle() : NativeObject{});
    if (binding != HostBinding::failed) setCurrentHostContext(context ? context->number() : 0);
    return binding;
}

HostBinding makeHostContextCurrentWithoutDrawable(const HostContextHandle *hostContext) {
    const auto *context = hostContext ? hostContext->context.get() : nullptr;
    if (!context || !context->container()) return HostBinding::failed;
    if (!operations.setView(context->container(), {}) || !makeHostContextCurrentAsIs(*context)) {
        return HostBinding::failed;
    }
    setCurrentHostContext(context->number());
    return HostBinding::current;
}

int32_t hostBufferAge(const HostContextHandle *hostContext) {
    auto *container = hostContext ? hostContext->context->container() : nullptr;
    return container ? operations.bufferAge(container) : 0;
}

void setHostSwapInterval(const HostContextHandle *hostContext, int32_t interval) {
    if (!hostContext || !hostContext->context->container()) return;
    operations.setSwapInterval(hostContext->context->container(), interval);
}

BorrowedBinding::BorrowedBinding(const HostContextHandle &hostContext)
    : m_previous(operations.saveBinding()), m_previousNumber(threadHostContext),
      m_isCurrent(makeHostContextCurrentWithoutDrawable(&hostContext) == HostBinding::current) {}

BorrowedBinding::~BorrowedBinding() {
    operations.restoreBinding(m_previous);
    setCurrentHostContext(m_previousNumber);
}

uint64_t currentHostContext() {
    return threadHostContext;
}

std::shared_ptr<glove::GLContext> lockCurrentHostContext() {
    auto &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    const auto found = live.byNumber.find(threadHostContext);
    return found == live.byNumber.end() ? nullptr : found->second.lock();
}

bool makeHostContextCurrentAsIs(const glove::GLContext &context) {
    auto *container = context.container();
    if (!container) {
        operations.clearCurrentContext();
        return true;
    }
    // The platform is queried only if the context may be current, since the query takes long on some hosts.
    const bool isCurrent = threadHostContext == context.number() && operations.currentContext() == container;
    return isCurrent || operations.makeCurrent(container);
}

void setCurrentHostContext(uint64_t number) {
    threadHostContext = number;
}

} // namespace host
