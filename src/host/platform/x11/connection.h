// Our own connection to an X server: one for each, opened at first use and kept for the life of the process, so that no
// context loses its connection. The application's connections are only queried for the server that they belong to.
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

// displayWord: of an application's Display that is still open; 0 for none.
void flushApplication(uint64_t displayWord);

class Connection {
public:
    // By a display's host value: 0 for the server of $DISPLAY, otherwise the application's Display. If $DISPLAY names
    // no server, 0 means whichever server is known already. Null when the server is unreachable.
    [[nodiscard]] static Connection *open(uint64_t displayWord);
    // The same without dereferencing a value that open() has seen before: its Display may have been closed since.
    [[nodiscard]] static Connection *find(uint64_t displayWord);

    explicit Connection(Display *display);
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    [[nodiscard]] Display *display() const { return m_display; }
    [[nodiscard]] int screen() const { return m_screen; }
    // The server has closed the connection. GLX must not be called any more.
    [[nodiscard]] bool isLost() const { return m_isLost; }
    [[nodiscard]] bool hasGlxExtension(std::string_view name) const;
    // The greatest swap interval of a drawable; 1 if the host does not report it.
    [[nodiscard]] int32_t maxSwapInterval() const;

    // A software renderer, which queries the server for the size of its drawable and does not check the reply.
    [[nodiscard]] bool isSoftware() const { return m_isSoftware; }
    // Flushes the output buffer, if it is not empty.
    void flush();
    // Nothing when the view does not exist or is on another server. Syncs the application's own connection when the
    // window is unknown: its creation may still be in the output buffer there.
    [[nodiscard]] std::optional<WindowFacts> windowFacts(const View &view);
    // The same, queried from the server at each call: other clients learn of a change when we do, or a moment before.
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
