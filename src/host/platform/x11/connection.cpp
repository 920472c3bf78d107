#include "host/platform/x11/connection.h"

#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>

#include "host/platform/x11/glx.h"
#include "host/platform/x11/x_errors.h"

namespace host::platform::x11 {

namespace {

// Smaller values are no addresses: they stand for the default display.
constexpr uint64_t firstAddress = 4096;

struct Connections {
    std::mutex mutex;
    std::map<std::string, std::unique_ptr<Connection>, std::less<>> byName;
    std::map<uint64_t, Connection *> byWord;
};

Connections &connections() {
    static auto *instance = new Connections; // never destroyed: threads swap while the process ends
    return *instance;
}

// A draw of Mesa's software renderer allocates and frees a megabyte and more. With its first thresholds, glibc returns
// that to the system each time and faults it in again. It raises them to the size of the largest mapping that is freed.
void raiseHeapThresholds() {
    constexpr size_t size = size_t(4) << 20;
    void *volatile memory = std::malloc(size); // volatile: compilers leave out the pair
    std::free(memory);
}

Display *applicationDisplay(uint64_t displayWord) {
    return displayWord < firstAddress ? nullptr : reinterpret_cast<Display *>(displayWord);
}

// Called with the mutex held.
Connection *openServer(Connections &all, const std::string &name) {
    if (const auto known = all.byName.find(name); known != all.byName.end()) return known->second.get();
    XInitThreads();
    Display *display = XOpenDisplay(name.c_str());
    if (!display) return nullptr;
    return all.byName.emplace(name, std::make_unique<Connection>(display)).first->second.get();
}

bool isSoftwareRenderer(Display *display, int screen, bool canTell) {
    const auto query = findGlxFunction<PFNGLXQUERYRENDERERINTEGERMESAPROC>("glXQueryRendererIntegerMESA");
    unsigned isAccelerated = 1;
    return canTell && query && query(display, screen, 0, GLX_RENDERER_ACCELERATED_MESA, &isAccelerated) &&
           !isAccelerated;
}

Connection *unlessLost(Connection *connection) {
    return connection && connection->isLost() ? nullptr : connection;
}

} // namespace

Connection *Connection::open(uint64_t displayWord) {
    Display *application = applicationDisplay(displayWord);
    const std::string name = application ? XDisplayString(application) : XDisplayName(nullptr);
    auto &all = connections();
    const std::lock_guard lock(all.mutex);
    if (auto *connection = openServer(all, name)) {
        all.byWord[displayWord] = connection;
        return unlessLost(connection);
    }
    if (application || all.byName.empty()) return nullptr;
    return unlessLost(all.byName.begin()->second.get());
}

Connection *Connection::find(uint64_t displayWord) {
    {
        auto &all = connections();
        const std::lock_guard lock(all.mutex);
        const auto known = all.byWord.find(displayWord);
        if (known != all.byWord.end()) return unlessLost(known->second);
    }
    return open(displayWord);
}

Connection::Connection(Display *display)
    : m_display(display), m_screen(DefaultScreen(display)), m_configs(display, m_screen), m_children(display),
      m_windows(display, m_screen, m_children) {
    keepErrorsFromProcess(display, m_isLost);
    if (!glx().queryExtension(display, nullptr, nullptr)) return;
    if (const char *extensions = glx().queryExtensionsString(display, m_screen)) m_glxExtensions = extensions;
    m_glxExtensions = " " + m_glxExtensions + " ";
    m_isSoftware = isSoftwareRenderer(display, m_screen, hasGlxExtension("GLX_MESA_query_renderer"));
    if (m_isSoftware) raiseHeapThresholds();
}

bool Connection::hasGlxExtension(std::string_view name) const {
    return m_glxExtensions.find(" " + std::string(name) + " ") != std::string::npos;
}

int32_t Connection::maxSwapInterval() const {
    // The extensions define no maximum, and hosts report one for existing drawables only.
    const bool takesAny = hasGlxExtension("GLX_EXT_swap_control") || hasGlxExtension("GLX_MESA_swap_control");
    return takesAny ? INT32_MAX : 1;
}

void Connection::flush() {
    // XFlush reads events with a system call, even if there is nothing to send.
    if (hasRequestsToSend(m_display)) XFlush(m_display);
}

std::optional<WindowFacts> Connection::windowFacts(const View &view) {
    if (isLost() || find(view.display) != this) return std::nullopt;
    m_windows.readEvents();
    if (const auto known = m_windows.find(view.window)) return known;
    return askWindow(view);
}

std::optional<WindowFacts> Connection::askWindow(const View &view) {
    if (isLost() || find(view.display) != this) return std::nullopt;
    if (const auto found = m_windows.watch(view.window)) return found;
    m_children.forget(view.window);
    Display *application = applicationDisplay(view.display);
    if (!application) return std::nullopt;
    XSync(application, False);
    return m_windows.watch(view.window);
}

void flushApplication(uint64_t displayWord) {
    if (Display *application = applicationDisplay(displayWord)) XFlush(application);
}

} // namespace host::platform::x11
