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

    // The child of that visual, which fills a parent of that size, not shown at first. None when the parent is gone.
    [[nodiscard]] Window childOf(Window parent, const XVisualInfo &visual, unsigned width, unsigned height);
    // With the first frame, and not before: a child that covers its parent keeps every Expose event from it, and there
    // are applications that draw at their first one. Hides the parent's other children, which would cover it; no child
    // has the parent's own number.
    void show(Window parent, Window child);
    // Brings the parent's children to its size.
    void resize(Window parent, unsigned width, unsigned height);
    [[nodiscard]] bool has(Window child);
    // For a parent or a child that is gone.
    void forget(Window window);

private:
    struct Child {
        Window window = 0;
        unsigned width = 0;
        unsigned height = 0;
        bool isShown = false;
    };

    Window create(Window parent, const XVisualInfo &visual, unsigned width, unsigned height);
    void fit(Child &child, unsigned width, unsigned height);

    Display *m_display;
    std::mutex m_mutex; // guards what is below
    std::map<std::pair<Window, VisualID>, Child> m_children;
    std::map<VisualID, Colormap> m_colormaps;
};

} // namespace host::platform::x11
