#include "egl/state.h"

#include "capability/collect_system_report.h"
#include "egl/desktop_clients.h"
#include "egl/gui_link.h"
#include "egl/libgl.h"
#include "egl/process_journal.h"
#include "egl/report_message.h"
#include "egl/thread_record.h"
#include "foundation/log.h"
#include "foundation/paths.h"
#include "host/opengl_library.h"
#include "preferences/host_configuration.h"
#include "profiles/profile_reader.h"

namespace egl {

namespace {

// Never destroyed: threads may be inside entries while the process ends, and exit handlers call entries.
constinit State *globalState = nullptr;
constinit std::mutex globalStateMutex;
constinit std::atomic<bool> isStateLoaded = false;

} // namespace

State::State()
    : m_profile(defaultProfile),
      // A process that has loaded the host's libGL.so.1 or libOpenGL.so.0 would not load the one that follows EGL
      // contexts.
      m_openGLLibrary(desktop_clients::isOn() ? host::openPlainHostOpenGLLibrary() : host::openHostOpenGLLibrary()),
      m_uiLink(setRenderModeOfAll) {
    // Relative search paths are resolved against the first working directory, even if the application changes it later.
    (void)getFirstWorkingDirectory();
    attachGuiLink(*this);
    if (desktop_clients::isOn()) connectLibGl();
    threadRecord.currentDisplay = nullptr;
}

bool State::load() {
    if (m_windowSystem) return true;

    std::string error;
    if (!m_settings.load(error)) {
        logMessage(LogError, "%s", error.c_str());
        logMessage(LogError, "Failed to load Zelvane preferences file");
        return false;
    }
    if (!m_openGLLibrary.isLoaded()) {
        logMessage(LogError, "Failed to load OpenGL library");
        return false;
    }
    const CKZRTString directory(m_settings.getProfilesDirectory().c_str());
    const CKZRTString name(m_settings.getCurrentProfile().c_str());
    if (!name.empty() && !loadDeviceProfile(m_profile, directory, name, &m_profileText)) {
        // Every entry retries the load; the failure is logged once.
        if (!std::exchange(m_isProfileFailureTold, true))
            logMessage(LogError, "%s",
                       (failureText("load device profile", name.data()) + " from " + directory.data()).c_str());
        return false;
    }
    m_windowSystem = std::make_shared<glove::WSAPI>();
    capability::SystemReportFiller filler(m_report, [this](const capability::ReportRecord &record) {
        if (m_uiLink.isAttached()) m_uiLink.post(reportMessage(record));
    });
    auto gate = capability::collectSystemReport(m_openGLLibrary, m_windowSystem, filler);
    if (gate) m_esGate = std::make_unique<const capability::EsGate>(std::move(*gate));
    return true;
}

Display *State::findDisplay(EGLDisplay handle) const {
    Display *display = m_newestDisplay.load(std::memory_order_acquire);
    while (display && display != handle)
        display = display->older;
    return display;
}

Display *State::findDisplayByNativeId(uint64_t nativeId) {
    const std::lock_guard lock(m_displaysMutex);
    for (const auto &[display, id] : m_displays) {
        if (id == nativeId) return display;
    }
    return nullptr;
}

Display &State::createDisplay(uint64_t nativeId, uint64_t hostDisplay) {
    const std::lock_guard lock(m_displaysMutex);
    for (const auto &[display, id] : m_displays) {
        if (id == nativeId) return *display;
    }
    auto display = std::make_unique<Display>(hostDisplay, m_newestDisplay.load(std::memory_order_relaxed));
    m_displays.emplace(display.get(), nativeId);
    m_newestDisplay.store(display.get(), std::memory_order_release);
    return *display.release();
}

std::vector<std::shared_ptr<Context>> State::contexts() {
    std::vector<std::shared_ptr<Context>> contexts;
    const std::lock_guard lock(m_displaysMutex);
    for (const auto &[display, nativeId] : m_displays) {
        const auto own = display->contexts();
        contexts.insert(contexts.end(), own.begin(), own.end());
    }
    return contexts;
}

const host::EGL &State::hostEGL(bool canLookUp) {
    if (const auto *known = m_hostEGL.load(std::memory_order_acquire)) return *known;
    static const host::EGL none;
    if (!canLookUp) return none;
    const std::lock_guard lock(m_hostEGLMutex);
    if (const auto *known = m_hostEGL.load(std::memory_order_relaxed)) return *known;
    auto made = std::make_unique<const host::EGL>(m_openGLLibrary);
    if (!made->hasHost()) return none;
    m_hostEGL.store(made.get(), std::memory_order_release);
    return *made.release();
}

const capability::EsGate *State::esGate() {
    {
        const std::lock_guard lock(m_esGateMutex);
        if (m_esGate) return m_esGate.get();
    }
    // Called without the lock, since the probe may take long.
    auto gate = capability::probeEsGate(m_openGLLibrary, m_windowSystem);
    if (!gate) return nullptr;
    const std::lock_guard lock(m_esGateMutex);
    if (!m_esGate) m_esGate = std::make_unique<const capability::EsGate>(std::move(*gate));
    return m_esGate.get();
}

bool State::isStrictContextMode() const {
    return (getHostConfiguration() & CONFIG_FORCE_LOOSE_CONTEXTS) == 0 && m_settings.getStrictContextMode();
}

bool ensureLoaded() {
    // Once loaded, the state stays loaded until the process ends.
    if (isStateLoaded.load(std::memory_order_acquire)) return true;
    const std::lock_guard lock(globalStateMutex);
    if (!globalState) globalState = new State;
    desktop_clients::loadBackEnds();
    if (!globalState->load()) return false;
    beginJournal(*globalState);
    isStateLoaded.store(true, std::memory_order_release);
    return true;
}

std::mutex &stateMutex() {
    return globalStateMutex;
}

State &state() {
    return *globalState;
}

} // namespace egl
