#include "egl/context.h"

#include "egl/desktop_clients.h"
#include "egl/display.h"
#include "egl/private_buffers.h"
#include "egl/standard/context_rules.h"
#include "egl/standard/desktop_contexts.h"
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
                                                              const ContextAttribs &attribs, EGLenum api) {
    host::HostContextRequest request;
    // A config that the profile lacks has no host format, so the bind fails without a host context.
    request.format = config.hostConfig() ? config.hostConfig()->format() : nullptr;
    request.legacy = attribs.legacyClient;
    if (desktop_clients::isOn()) request.robustness = standard::robustnessOf(attribs);
    if (api == EGL_OPENGL_API) request.desktop = standard::desktopContextOf(attribs);
    if (const auto shareHandle = share ? share->hostContext() : nullptr) request.share = shareHandle->context;
    return host::createHostContext(request);
}

// Keeps the host context until the process ends, since the last context that shares its objects is unknown.
void leaveBehind(std::shared_ptr<host::HostContextHandle> hostContext) {
    if (hostContext) new std::shared_ptr(std::move(hostContext));
}

EsLibrary openBackEnd(const ContextAttribs &attribs, EGLenum api) {
    if (api == EGL_OPENGL_API) return EsLibrary::ofDesktop();
    return EsLibrary(State::loadEsLibrary(attribs.requestedMajor));
}

gl::Function askBackEnd(void *context, const char *name) {
    return reinterpret_cast<gl::Function>(static_cast<Context *>(context)->getExtProcAddress(name));
}

} // namespace

Context::Context(Display &display, uint64_t handle, std::shared_ptr<const Config> config,
                 std::shared_ptr<Context> share, const ContextAttribs &attribs, EGLenum api)
    : display(display), handle(handle), api(api), config(std::move(config)), shareContext(std::move(share)),
      group(shareContext ? shareContext->group : std::make_shared<ContextGroup>()),
      functions(gl::functionTableAt(this, askBackEnd, !isDesktop())), esLibrary(openBackEnd(attribs, api)),
      attribs(withHandle(attribs, handle)),
      m_hostContext(createHostContextFor(*this->config, shareContext.get(), attribs, api)) {}

Context::~Context() {
    leavePrivateBuffer(std::move(privateBuffer));
    leaveBehind(std::move(m_hostContext));
}

void *Context::getExtProcAddress(const char *name) const {
    // The function table keeps the back end's functions after the context is destroyed, so the library must stay
    // loaded.
    if (!m_keepsLibrary.exchange(true, std::memory_order_relaxed)) esLibrary.library.keepLoaded("zvGetExtProcAddress");
    return esLibrary.getExtProcAddress ? esLibrary.getExtProcAddress(name) : nullptr;
}

bool Context::deleteEsContext() {
    if (threadRecord.current == this) return deleteClaimed();
    if (!claim()) {
        m_deletesWhenLetGo = true;
        // If the thread with the claim released it before the flag was set, the claim succeeds here.
        if (!claim()) return true;
        m_deletesWhenLetGo = false;
    }
    if (deleteClaimed()) return true;
    boundToThread = false;
    return false;
}

void Context::deleteOnceLetGo() {
    m_deletesWhenLetGo = true;
    if (!claim()) return;
    m_deletesWhenLetGo = false;
    static_cast<void>(deleteClaimed());
    boundToThread = false;
}

bool Context::deleteClaimed() {
    {
        std::shared_ptr<host::HostContextHandle> ended;
        const std::lock_guard lock(m_mutex);
        ended.swap(m_hostContext);
    }
    if (!esContext.load()) return true;
    // The record's display is unchanged.
    if (threadRecord.current == this) setCurrentContext(nullptr, threadRecord.currentDisplay);
    if (!esLibrary.deleteEsContext) return false;
    deleteUnlessShared();
    return true;
}

void Context::deleteUnlessShared() {
    zvEsContext doomed = nullptr;
    {
        const std::lock_guard lock(m_mutex);
        m_deletesWithoutSharers = m_sharers > 0;
        if (m_deletesWithoutSharers) return;
        // The object may still be another's share context, and that one's first bind must not use a deleted back-end
        // context.
        doomed = esContext.exchange(nullptr);
    }
    if (doomed) esLibrary.deleteEsContext(doomed);
}

void Context::letGo() {
    boundToThread = false;
    if (m_deletesWhenLetGo && claim()) (void)deleteClaimed();
}

bool Context::setRenderMode(uint8_t mode) const {
    if (!esLibrary.setRenderMode) return false;
    esLibrary.setRenderMode(&mode, 1);
    return true;
}

std::shared_ptr<host::HostContextHandle> Context::hostContext() const {
    const std::lock_guard lock(m_mutex);
    return m_hostContext;
}

SharedEsContext::SharedEsContext(Context *share) : m_share(share) {
    if (!share) return;
    const std::lock_guard lock(share->m_mutex);
    ++share->m_sharers;
    if (!share->m_deletesWithoutSharers) m_esContext = share->esContext;
}

SharedEsContext::~SharedEsContext() {
    if (!m_share) return;
    bool isDeletedNow = false;
    {
        const std::lock_guard lock(m_share->m_mutex);
        isDeletedNow = --m_share->m_sharers == 0 && m_share->m_deletesWithoutSharers;
    }
    if (isDeletedNow) m_share->deleteUnlessShared();
}

} // namespace egl
