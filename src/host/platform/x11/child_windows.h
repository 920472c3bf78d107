// Children of application windows whose visual cannot be drawn to: each fills its parent, shows what is drawn, and
// passes all input to it. A child is destroyed with its parent; until then it is reused. Any thread.
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

    // The child of that visual, which fills a parent of that size, initially unmapped. None when there is no parent.
    [[nodiscard]] Window childOf(Window parent, const XVisualInfo &visual, unsigned width, unsigned height);
    // Called with the first frame: a child that covers its parent receives every Expose event instead, and some
    // applications draw at their first one. Unmaps the parent's other children, which would cover this one. A child
    // never has the parent's own number.
    void show(Window parent, Window child);
    // Resizes the parent's children to its size.
    void resize(Window parent, unsigned width, unsigned height);
    [[nodiscard]] bool has(Window child);
    // Called for a parent or a child that no longer exists.
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
    std::mutex m_mutex; // guards the fields below
    std::map<std::pair<Window, VisualID>, Child> m_children;
    std::map<VisualID, Colormap> m_colormaps;
};

} // namespace host::platform::x11
