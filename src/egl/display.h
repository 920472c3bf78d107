// One display: its configs, contexts, surfaces, images and syncs. Never freed before the process ends, so that a
// handle stays valid. Every operation locks the display for its own duration; entries hold no lock between them.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <set>
#include <vector>

#include "egl/egl_api.h"
#include "egl/image.h"
#include "egl/object_table.h"
#include "egl/standard/images.h"
#include "egl/standard/syncs.h"
#include "profiles/config_list.h"
#include "zelvane/back_end.h"

namespace glove {
class ISurface;
}
namespace host {
struct EGL;
}

namespace egl {

class Context;
class Surface;

class Display {
public:
    // older: the display that was made before this one, or null.
    explicit Display(uint64_t nativeDisplay, Display *older = nullptr);
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;
    ~Display();

    // Does nothing on a display that is initialised.
    void initialize(const DeviceProfile &profile);
    // Removes all objects without calling a back end or the host. Handles are not reused afterwards.
    void terminate();
    // Takes no lock.
    [[nodiscard]] bool isInitialized() const { return m_initialized.load(std::memory_order_acquire); }
    // Changes whenever a valid handle may have become invalid. Takes no lock.
    [[nodiscard]] uint64_t handlesVersion() const { return m_handlesVersion.load(std::memory_order_acquire); }

    // The config is valid as long as the result is held. Null for an unknown handle.
    [[nodiscard]] std::shared_ptr<const Config> findConfig(EGLConfig handle) const;
    // The config used for a null config. Null on a display that is not initialised.
    [[nodiscard]] std::shared_ptr<const Config> noConfig() const;
    [[nodiscard]] EGLint listConfigs(EGLConfig *out, EGLint size) const;
    // account: see ConfigList::chooseConfigs.
    [[nodiscard]] EGLint chooseConfigs(const EGLint *attributes, EGLConfig *out, EGLint size,
                                       ChoiceAccount *account = nullptr) const;

    // A context or surface that was removed from its table is still found on the thread that has it current.
    [[nodiscard]] std::shared_ptr<Context> findContext(EGLContext handle) const;
    // In handle order.
    [[nodiscard]] std::vector<std::shared_ptr<Context>> contexts() const;
    [[nodiscard]] std::shared_ptr<Context> createContext(std::shared_ptr<const Config> config,
                                                         std::shared_ptr<Context> share, const ContextAttribs &attribs,
                                                         EGLenum api = EGL_OPENGL_ES_API);
    // False for an unknown handle, and when the back end cannot delete the context, which then stays in the table.
    bool destroyContext(uint64_t handle);

    [[nodiscard]] std::shared_ptr<Surface> findSurface(EGLSurface handle) const;
    // Whether a surface of that window exists.
    [[nodiscard]] bool hasSurfaceOf(uint64_t window) const;
    // Null when the host surface cannot be created; the handle is consumed all the same.
    [[nodiscard]] std::shared_ptr<Surface> createWindowSurface(const Config &config, uint64_t window,
                                                               const EGLint *attributes);
    [[nodiscard]] std::shared_ptr<Surface> createPbufferSurface(const Config &config, const EGLint *attributes);
    // For a bind without surfaces: a new handle at each call, for the one host buffer of the context.
    [[nodiscard]] std::shared_ptr<Surface> createPrivateSurface(Context &context);
    [[nodiscard]] std::shared_ptr<Surface> createPixmapSurface(const Config &config, uint64_t pixmap,
                                                               const EGLint *attributes);
    [[nodiscard]] bool destroySurface(EGLSurface handle);

    [[nodiscard]] EGLImage createImage(EGLenum target, EGLClientBuffer buffer);
    // False when there is no such image.
    [[nodiscard]] bool destroyImage(EGLImage image);

    [[nodiscard]] EGLSync createSync(const host::EGL &hostEGL);
    [[nodiscard]] bool isKnownSync(EGLSync sync) const;
    void destroySync(const host::EGL &hostEGL, EGLSync sync);

    // For desktop clients, in place of those above.
    standard::Images standardImages;
    standard::Syncs standardSyncs;

    const uint64_t nativeDisplay; // the host's display value; passed to the host layer
    Display *const older;

private:
    // Called after handles have become invalid.
    void forgetMemos();
    // The caller holds m_displayMutex.
    std::shared_ptr<Surface> insertSurface(uint64_t handle, std::shared_ptr<glove::ISurface> hostSurface,
                                           const Config &config, const EGLint *attributes);

    std::atomic<bool> m_initialized = false; // written with the mutex held
    std::atomic<uint64_t> m_handlesVersion = 0;

    mutable std::mutex m_displayMutex;           // guards all fields below
    std::shared_ptr<const ConfigList> m_configs; // shared with contexts, whose configs point into it
    ObjectTable<Context> m_contexts;
    std::vector<std::shared_ptr<EglImage>> m_images;
    ObjectTable<Surface> m_surfaces;
    std::set<uint64_t> m_syncs; // host GLsync values
};

} // namespace egl
