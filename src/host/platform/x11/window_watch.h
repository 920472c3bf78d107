// What is known of windows that contexts draw to: asked of the server once, and followed by the events of our own
// connection from then on, so that a bind or a frame asks nothing. Any thread.
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
    bool canBeDrawnTo = false; // of the connection's screen, and not a window for input alone
};

class WindowWatch {
public:
    WindowWatch(Display *display, int screen, ChildWindows &children)
        : m_display(display), m_screen(screen), m_children(children) {}

    // Takes in what the server has sent, with one read that does not wait.
    void readEvents();
    // Takes in what some other call has read already.
    void takeReadEvents();

    // As the events so far tell. Nothing for a window that is not watched, or is gone.
    [[nodiscard]] std::optional<WindowFacts> find(Window window);
    // Asks the server and watches the window. Nothing when it is not there.
    std::optional<WindowFacts> watch(Window window);

    // The title that find is told to keep: of a window and those that hold it, until one of them changes.
    [[nodiscard]] std::optional<std::string> findTitle(Window window);
    // Watches a window whose title or parent counts for another's title.
    void watchTitle(Window window);
    void keepTitle(Window window, const std::string &title);

private:
    struct Watched {
        std::optional<WindowFacts> facts;
        std::optional<std::string> title;
        long events = 0; // that are asked for
    };

    // All with the mutex held.
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
