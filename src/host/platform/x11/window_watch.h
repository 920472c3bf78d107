// Cached state of windows that contexts draw to: queried from the server once, and updated by the events of our own
// connection from then on, so that a bind or a frame needs no query. Any thread.
#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include <X11/Xlib.h>

#include "host/platform/x11/child_windows.h"

namespace host::platform::x11 {

struct WindowFacts {
    VisualID visual = 0;
    unsigned width = 0;
    unsigned height = 0;
    bool canBeDrawnTo = false; // on the connection's screen, and not InputOnly
};

class WindowWatch {
public:
    WindowWatch(Display *display, int screen, ChildWindows &children)
        : m_display(display), m_screen(screen), m_children(children) {}

    // Handles the events that the server has sent, with one non-blocking read.
    void readEvents();
    // Handles the events that another call has read already.
    void takeReadEvents();

    // The state after the events so far. Nothing for a window that is not watched or does not exist.
    [[nodiscard]] std::optional<WindowFacts> find(Window window);
    // Queries the server and watches the window. Nothing when it does not exist.
    std::optional<WindowFacts> watch(Window window);

    // The title that find stores: of a window and its ancestors, until one of them changes.
    [[nodiscard]] std::optional<std::string> findTitle(Window window);
    // Watches a window whose title or parent affects another's title.
    void watchTitle(Window window);
    void keepTitle(Window window, const std::string &title);

private:
    struct Watched {
        std::optional<WindowFacts> facts;
        std::optional<std::string> title;
        long events = 0; // the selected event mask
    };

    // All require the mutex.
    void handle(const XEvent &event);
    void select(Window window, long events);
    void forgetTitles();

    Display *const m_display;
    const int m_screen;
    ChildWindows &m_children;
    std::mutex m_mutex;
    std::map<Window, Watched> m_windows;
};

} // namespace host::platform::x11
