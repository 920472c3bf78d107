#include "egl/context.h"

#include "egl/display.h"
#include "egl/state.h"
#include "egl/surface.h"
#include "egl/thread_record.h"

namespace egl {

namespace {

ContextAttribs withHandle(ContextAttribs attribs, uint64_t handle) {
    attribs.contextHandle = handle;
    return attribs;
}

std::shared_ptr<host::HostContextHandle> createHostContextFor(const Config &config, const Context *share,
                                                              const ContextAttribs &attribs) {
    host::HostContextRequest request;
    // A config that no profile has carries no host format; the bind then finds no context.
    request.format = config.hostConfig() ? config.hostConfig()->format() : nullptr;
    request.legacy = attribs.legacyClient;
    if (const auto shareHandle = share ? share->hostContext() : nullptr) request.share = shareHandle->context;
    return host::createHostContext(request);
}

gl::Function askBackEnd(void *context, const char *name) {
    return reinterpret_cast<gl::Function>(static_cast<Context *>(context)->getExtProcAddress(name));
}

} // namespace

Context::Context(Display &display, uint64_t handle, std::shared_ptr<const Config> config,
                 std::shared_ptr<Context> share, const ContextAttribs &attribs)
    : display(display), handle(handle), config(std::move(config)), shareContext(std::move(share)),
      functions(gl::functionTableAt(this, askBackEnd)), esLibrary(State::loadEsLibrary(attribs.requestedMajor)),
      attribs(withHandle(attribs, handle)),
      m_hostContext(createHostContextFor(*this->config, shareContext.get(), attribs)) {}

Context::~Context() {
    if (m_hostContext) new std::shared_ptr(std::move(m_hostContext));
}

void *Context::getExtProcAddress(const char *name) {
    auto function = m_getExtProcAddress.load(std::memory_order_relaxed);
    if (!function) {
        function = reinterpret_cast<GetExtProcAddress>(esLibrary.getSymbol("zvGetExtProcAddress"));
        m_getExtProcAddress.store(function, std::memory_order_relaxed);
        // Proxies remember answers beyond the life of a context, so the code behind them has to stay.
        esLibrary.keepLoaded("zvGetExtProcAddress");
    }
    return function ? function(name) : nullptr;
}

bool Context::deleteEsContext() {
    if (boundToThread && threadRecord.current != this) {
        // Its thread goes on drawing with it, and deletes it when it lets go.
        deletesWhenUnbound = true;
        return true;
    }
    {
        std::shared_ptr<host::HostContextHandle> ended;
        const std::lock_guard lock(m_mutex);
        ended.swap(m_hostContext);
    }
    const zvEsContext doomed = esContext;
    if (!doomed) return true;
    // The display of the record stays as it is.
    if (threadRecord.current == this) setCurrentContext(nullptr, threadRecord.currentDisplay);

    using DeleteEsContext = void (*)(zvEsContext);
    const auto deleteFunction = reinterpret_cast<DeleteEsContext>(esLibrary.getSymbol("zvDeleteEsContext"));
    if (!deleteFunction) return false;
    // The object may live on as the share context of another, whose first bind must not hand out a deleted one.
    esContext = nullptr;
    deleteFunction(doomed);
    return true;
}

bool Context::setRenderMode(uint8_t mode) {
    using SetRenderMode = void (*)(const uint8_t *, size_t);
    const auto function = reinterpret_cast<SetRenderMode>(esLibrary.getSymbol("zvSetRenderMode"));
    if (!function) return false;
    function(&mode, 1);
    return true;
}

std::shared_ptr<host::HostContextHandle> Context::hostContext() const {
    const std::lock_guard lock(m_mutex);
    return m_hostContext;
}

SurfacePair Context::surfaces() const {
    const std::lock_guard lock(m_mutex);
    return m_surfaces;
}

void Context::setSurfaces(SurfacePair surfaces) {
    const std::lock_guard lock(m_mutex);
    std::swap(m_surfaces, surfaces);
}

bool Context::isSurfaceless() const {
    return std::atomic_ref(const_cast<uint8_t &>(attribs.surfaceless)) != 0;
}

void Context::setSurfaceless(bool surfaceless) {
    std::atomic_ref(attribs.surfaceless) = surfaceless ? 1 : 0;
}

} // namespace egl
