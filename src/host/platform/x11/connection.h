// Our own connection to an X server: one for each, opened at first use and kept for the life of the process, so that
// nothing of it can be closed under a context. The application's connections are only asked which server they are on.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <GL/glx.h>
#include <X11/Xlib.h>

#include "host/platform/operations.h"
#include "host/platform/x11/child_windows.h"
#include "host/platform/x11/fb_configs.h"
#include "host/platform/x11/window_watch.h"

namespace host::platform::x11 {

// displayWord: of an application's Display that is open still; 0 has none.
void flushApplication(uint64_t displayWord);

class Connection {
public:
    // By a display's host word: 0 for the server of $DISPLAY, otherwise the application's Display. Where $DISPLAY leads
    // nowhere, 0 means whichever server is known already. Null when the server is not there.
    [[nodiscard]] static Connection *open(uint64_t displayWord);
    // The same without following a word that open() has met before: its Display may have been closed since.
    [[nodiscard]] static Connection *find(uint64_t displayWord);

    explicit Connection(Display *display);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    [[nodiscard]] Display *display() const { return m_display; }
    [[nodiscard]] int screen() const { return m_screen; }
    // The server went away. Nothing may be asked of GLX any more.
    [[nodiscard]] bool isLost() const { return m_isLost; }
    [[nodiscard]] bool hasGlxExtension(std::string_view name) const;
    // The greatest that a drawable takes; 1 for a host that does not say.
    [[nodiscard]] int32_t maxSwapInterval() const;

    // A software renderer, which asks the server for the size of its drawable and does not look at the answer.
    [[nodiscard]] bool isSoftware() const { return m_isSoftware; }
    // Sends what waits in the buffer, if anything does.
    void flush();
    // Nothing when the view is gone or is on another server. Waits for the application's own connection when the window
    // is not known yet: it may still sit in the output buffer there.
    [[nodiscard]] std::optional<WindowFacts> windowFacts(const View &view);
    // The same, asked of the server at each call: other clients hear of a change when we do, or a moment before.
    [[nodiscard]] std::optional<WindowFacts> askWindow(const View &view);

    FbConfigs &configs() { return m_configs; }
    ChildWindows &children() { return m_children; }
    WindowWatch &windows() { return m_windows; }

private:
    Display *m_display;
    int m_screen;
    std::atomic<bool> m_isLost = false;
    std::string m_glxExtensions;
    bool m_isSoftware = false;
    FbConfigs m_configs;
    ChildWindows m_children;
    WindowWatch m_windows;
};

} // namespace host::platform::x11
