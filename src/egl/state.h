// The state of the process: created and loaded by the first EGL call that needs it, and never unloaded.
#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "capability/es_gate.h"
#include "capability/host_egl.h"
#include "capability/system_report.h"
#include "egl/display.h"
#include "egl/egl_api.h"
#include "foundation/dynamic_library.h"
#include "host/wsapi.h"
#include "preferences/settings.h"
#include "profiles/device_profile.h"
#include "ui/link.h"
#include "zelvane/back_end.h"

namespace egl {

struct EsLibrary;

class State {
public:
    State();
    State(const State &) = delete;
    State &operator=(const State &) = delete;
    ~State() = delete;

    // Runs the remaining steps of the load. A failure is not remembered: the next call tries again from the start.
    // The caller holds stateMutex.
    [[nodiscard]] bool load();

    // Null for an unknown handle; the handle is compared and never dereferenced. Takes no lock.
    [[nodiscard]] Display *findDisplay(EGLDisplay handle) const;
    [[nodiscard]] Display *findDisplayByNativeId(uint64_t nativeId);
    // The display of that native id, created on demand. hostDisplay is passed to the host layer.
    [[nodiscard]] Display &createDisplay(uint64_t nativeId, uint64_t hostDisplay);

    // A snapshot of all displays' contexts: displays in key order, contexts in handle order.
    [[nodiscard]] std::vector<std::shared_ptr<Context>> contexts();

    // The host functions, looked up at the first use with a host context current and kept for the life of the state.
    // All null until then. canLookUp: whether one of our contexts is current on the host.
    [[nodiscard]] const host::EGL &hostEGL(bool canLookUp = true);

    // The host's capabilities: probed during the load, or at the first call if that was not possible. Null when the
    // host cannot be probed. Any thread.
    [[nodiscard]] const capability::EsGate *esGate();

    // False if the embedding tool disables strict contexts, whatever the settings are.
    [[nodiscard]] bool isStrictContextMode() const;

    // The back-end library for this major version. Logs a failure to load it and returns an empty library then.
    [[nodiscard]] static DynamicLibrary loadEsLibrary(int32_t major);
    // Null when the library or its function is missing, or when the back end fails.
    [[nodiscard]] zvEsContext createEsContext(const EsLibrary &library, const ContextAttribs &attribs,
                                              const Display &display, zvEsContext shareEsContext);
    static void setEsContextAttribs(const EsLibrary &library, zvEsContext esContext, const ContextAttribs &attribs);

    [[nodiscard]] const Settings &settings() const { return m_settings; }
    [[nodiscard]] const DeviceProfile &profile() const { return m_profile; }
    [[nodiscard]] const DynamicLibrary &openGLLibrary() const { return m_openGLLibrary; }
    [[nodiscard]] const std::shared_ptr<glove::WSAPI> &windowSystem() const { return m_windowSystem; }
    [[nodiscard]] const capability::SystemReport &report() const { return m_report; }
    // The XML text that the profile was read from; empty without a profile.
    [[nodiscard]] const std::string &profileText() const { return m_profileText; }
    [[nodiscard]] const UiLink &uiLink() const { return m_uiLink; }
    [[nodiscard]] static uint64_t frameNumber() { return m_frameNumber.load(std::memory_order_relaxed); }
    static void countFrame() { m_frameNumber.fetch_add(1, std::memory_order_relaxed); }

private:
    std::map<Display *, uint64_t> m_displays; // to native id; guarded by m_displaysMutex; never shrinks
    std::mutex m_displaysMutex;
    std::atomic<Display *> m_newestDisplay = nullptr; // the same, for looking a handle up without the lock
    Settings m_settings; // this, the profile, its text and the report are written during the load, only read after it
    DeviceProfile m_profile;
    std::string m_profileText;
    bool m_isProfileFailureTold = false;
    DynamicLibrary m_openGLLibrary;
    std::shared_ptr<glove::WSAPI> m_windowSystem; // the state counts as loaded once this is set
    UiLink m_uiLink;                              // connects in the constructor
    static inline constinit std::atomic<uint64_t> m_frameNumber = 0;
    capability::SystemReport m_report;
    std::mutex m_esGateMutex;
    std::unique_ptr<const capability::EsGate> m_esGate; // guarded by m_esGateMutex; constant once set
    std::mutex m_hostEGLMutex;                          // held while the functions are looked up
    std::atomic<const host::EGL *> m_hostEGL = nullptr;
};

// The start of nearly every entry: creates the state and loads it. False when the load fails.
[[nodiscard]] bool ensureLoaded();

// Guards the creation and load of the state, and three whole entries. Taken before every other mutex.
[[nodiscard]] std::mutex &stateMutex();

// The state. Valid only after ensureLoaded() has run once in the process.
[[nodiscard]] State &state();

} // namespace egl
