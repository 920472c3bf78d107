// Children of application windows whose visual cannot be drawn to: each fills its parent, shows what is drawn, and lets
// all input through to it. A child goes with its parent; until then it is used again. Any thread.
#pragma once

#include <map>
#include <mutex>
#include <utility>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace host::platform::x11 {

class ChildWindows {
public:
    explicit ChildWindows(Display *display) : m_display(display) {}

    // The child of that visual, which hides the parent's others. None when the parent is gone.
    [[nodiscard]] Window childOf(Window parent, const XVisualInfo &visual);
    // For a parent that is drawn to itself: its children would cover it.
    void hideAll(Window parent) {
        const std::lock_guard lock(m_mutex);
        showOnly(parent, 0);
    }
    // Brings the parent's children to its size, which costs a round trip where there are any.
    void follow(Window parent);
    // The same for a size that is known already.
    void resize(Window parent, unsigned width, unsigned height);
    // For a parent that is gone.
    void forget(Window parent);

private:
    struct Child {
        Window window = 0;
        unsigned width = 0;
        unsigned height = 0;
        bool isShown = true;
    };

    Window create(Window parent, const XVisualInfo &visual, unsigned width, unsigned height);
    void fit(Child &child, unsigned width, unsigned height);
    // Visual 0 for none of them.
    void showOnly(Window parent, VisualID visual);
    bool isThere(Window window, unsigned &width, unsigned &height);

    Display *m_display;
    std::mutex m_mutex;
    std::map<std::pair<Window, VisualID>, Child> m_children;
    std::map<VisualID, Colormap> m_colormaps;
};

} // namespace host::platform::x11
