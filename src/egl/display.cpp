#include "egl/display.h"

#include <algorithm>

#include "capability/host_egl.h"
#include "egl/context.h"
#include "egl/context_allocator.h"
#include "egl/desktop_clients.h"
#include "egl/private_buffers.h"
#include "egl/surface.h"
#include "egl/thread_record.h"
#include "foundation/gl_types.h"

namespace egl {

namespace {

uint64_t number(const void *handle) {
    return reinterpret_cast<uintptr_t>(handle);
}

BackEndKind backEndKind(const ContextAttribs &attribs, EGLenum api) {
    if (api == EGL_OPENGL_API) return BackEndKind::Desktop;
    return attribs.requestedMajor == 1 ? BackEndKind::Es1 : BackEndKind::Es2;
}

} // namespace

Display::Display(uint64_t nativeDisplay, Display *older) : nativeDisplay(nativeDisplay), older(older) {}
Display::~Display() = default;

void Display::initialize(const DeviceProfile &profile) {
    const std::lock_guard lock(m_displayMutex);
    if (m_initialized) return;
    const auto kind = desktop_clients::isOn() ? ConfigKind::ofDesktop : ConfigKind::ofDevice;
    auto configs = std::make_shared<ConfigList>(profile, nativeDisplay, kind);
    // Profiles of devices say themselves whether they have it.
    if (desktop_clients::haveOpenGl() && profile.hasConfigsOfHostOnly) configs->addApi(EGL_OPENGL_BIT);
    m_configs = std::move(configs);
    m_initialized = true;
}

void Display::terminate() {
    // Objects that are removed from the tables are destroyed after the lock is released.
    std::shared_ptr<const ConfigList> configs;
    std::vector<std::shared_ptr<EglImage>> images;
    std::map<uint64_t, std::shared_ptr<Context>> contexts;
    std::map<uint64_t, std::shared_ptr<Surface>> surfaces;

    const std::lock_guard lock(m_displayMutex);
    configs.swap(m_configs);
    images.swap(m_images);
    m_syncs.clear(); // the host's fences are not deleted
    standard::clearSyncs(standardSyncs);
    (void)standardImages.takeAll();
    contexts = m_contexts.takeAll();
    surfaces = m_surfaces.takeAll();
    forgetMemos();
    m_initialized = false;
}

void Display::forgetMemos() {
    ++m_handlesVersion;
    // Releases this thread's memos, which would otherwise keep contexts alive.
    if (threadRecord.hold) threadRecord.hold->memos = {};
}

std::shared_ptr<const Config> Display::findConfig(EGLConfig handle) const {
    const std::lock_guard lock(m_displayMutex);
    const Config *config = m_configs ? m_configs->findConfig(number(handle)) : nullptr;
    return config ? std::shared_ptr<const Config>(m_configs, config) : nullptr;
}

std::shared_ptr<const Config> Display::noConfig() const {
    const std::lock_guard lock(m_displayMutex);
    return m_configs ? std::shared_ptr<const Config>(m_configs, &m_configs->noConfig()) : nullptr;
}

EGLint Display::listConfigs(EGLConfig *out, EGLint size) const {
    const std::lock_guard lock(m_displayMutex);
    return m_configs ? static_cast<EGLint>(m_configs->listConfigs(out, size)) : 0;
}

EGLint Display::chooseConfigs(const EGLint *attributes, EGLConfig *out, EGLint size, ChoiceAccount *account) const {
    const std::lock_guard lock(m_displayMutex);
    return m_configs ? static_cast<EGLint>(m_configs->chooseConfigs(attributes, out, size, account)) : 0;
}

std::shared_ptr<Context> Display::findContext(EGLContext handle) const {
    {
        const std::lock_guard lock(m_displayMutex);
        if (auto context = m_contexts.find(number(handle))) return context;
    }
    auto current = currentContext();
    return current && current->handle == number(handle) ? current : nullptr;
}

std::vector<std::shared_ptr<Context>> Display::contexts() const {
    const std::lock_guard lock(m_displayMutex);
    return m_contexts.all();
}

std::shared_ptr<Context> Display::createContext(std::shared_ptr<const Config> config, std::shared_ptr<Context> share,
                                                const ContextAttribs &attribs, EGLenum api) {
    const std::lock_guard lock(m_displayMutex);
    const uint64_t handle = m_contexts.takeHandle();
    const ContextAllocator<Context> memory(backEndKind(attribs, api));
    auto context =
        std::allocate_shared<Context>(memory, *this, handle, std::move(config), std::move(share), attribs, api);
    m_contexts.insert(handle, context);
    return context;
}

bool Display::destroyContext(uint64_t handle) {
    std::shared_ptr<Context> context;
    const std::lock_guard lock(m_displayMutex);
    context = m_contexts.find(handle);
    if (!context || !context->deleteEsContext()) return false;
    (void)m_contexts.take(handle);
    forgetMemos();
    return true;
}

std::shared_ptr<Surface> Display::findSurface(EGLSurface handle) const {
    {
        const std::lock_guard lock(m_displayMutex);
        if (auto surface = m_surfaces.find(number(handle))) return surface;
    }
    const auto current = currentContext();
    if (!current) return nullptr;
    const auto &[draw, read] = current->surfaces;
    if (draw && draw->handle == number(handle)) return draw;
    if (read && read->handle == number(handle)) return read;
    return nullptr;
}

bool Display::hasSurfaceOf(uint64_t window) const {
    const std::lock_guard lock(m_displayMutex);
    return std::ranges::any_of(m_surfaces.all(), [window](const auto &surface) {
        return surface->hostSurface && surface->hostSurface->nativeHandle().view.window == window;
    });
}

std::shared_ptr<Surface> Display::insertSurface(uint64_t handle, std::shared_ptr<glove::ISurface> hostSurface,
                                                const Config &config, const EGLint *attributes) {
    auto surface = std::make_shared<Surface>(handle, std::move(hostSurface), config, attributes);
    m_surfaces.insert(handle, surface);
    return surface;
}

std::shared_ptr<Surface> Display::createWindowSurface(const Config &config, uint64_t window, const EGLint *attributes) {
    const std::lock_guard lock(m_displayMutex);
    const uint64_t handle = m_surfaces.takeHandle();
    auto hostSurface = host::createHostWindowSurface(nativeDisplay, window, surfaceFormat(config));
    return hostSurface ? insertSurface(handle, std::move(hostSurface), config, attributes) : nullptr;
}

std::shared_ptr<Surface> Display::createPbufferSurface(const Config &config, const EGLint *attributes) {
    const std::lock_guard lock(m_displayMutex);
    const uint64_t handle = m_surfaces.takeHandle();
    return insertSurface(handle, host::createHostPBufferSurface(attributes, surfaceFormat(config)), config, attributes);
}

std::shared_ptr<Surface> Display::createPrivateSurface(Context &context) {
    if (!context.privateBuffer) context.privateBuffer = takePrivateBuffer();
    const std::lock_guard lock(m_displayMutex);
    return insertSurface(m_surfaces.takeHandle(), context.privateBuffer, *context.config, privateBufferAttributes);
}

std::shared_ptr<Surface> Display::createPixmapSurface(const Config &config, uint64_t pixmap, const EGLint *attributes) {
    const std::lock_guard lock(m_displayMutex);
    const uint64_t handle = m_surfaces.takeHandle();
    if (!desktop_clients::isOn()) return insertSurface(handle, host::createHostPixmapSurface(), config, attributes);
    auto hostSurface = host::createHostPixmapSurface(nativeDisplay, pixmap, surfaceFormat(config));
    return hostSurface ? insertSurface(handle, std::move(hostSurface), config, attributes) : nullptr;
}

bool Display::destroySurface(EGLSurface handle) {
    std::shared_ptr<Surface> surface;
    const std::lock_guard lock(m_displayMutex);
    surface = m_surfaces.take(number(handle));
    forgetMemos();
    return surface != nullptr;
}

EGLImage Display::createImage(EGLenum target, EGLClientBuffer buffer) {
    auto image = std::make_shared<EglImage>(EglImage{target, number(buffer)});
    const EGLImage handle = image.get();
    const std::lock_guard lock(m_displayMutex);
    m_images.push_back(std::move(image));
    return handle;
}

bool Display::destroyImage(EGLImage image) {
    const std::lock_guard lock(m_displayMutex);
    return std::erase_if(m_images, [&](const auto &candidate) { return candidate.get() == image; }) > 0;
}

EGLSync Display::createSync(const host::EGL &hostEGL) {
    const std::lock_guard lock(m_displayMutex);
    const EGLSync sync = hostEGL.glFenceSync(GL_SYNC_GPU_COMMANDS_COMPLETE, 0);
    m_syncs.insert(number(sync));
    return sync;
}

bool Display::isKnownSync(EGLSync sync) const {
    const std::lock_guard lock(m_displayMutex);
    return m_syncs.contains(number(sync));
}

void Display::destroySync(const host::EGL &hostEGL, EGLSync sync) {
    const std::lock_guard lock(m_displayMutex);
    // The lock covers the host call, so that two threads cannot delete one fence.
    if (m_syncs.erase(number(sync)) > 0 && hostEGL.glDeleteSync) hostEGL.glDeleteSync(sync);
}

} // namespace egl
