#include "host/platform/x11/child_windows.h"

#include "host/platform/x11/x_calls.h"

namespace host::platform::x11 {

bool ChildWindows::isThere(Window window, unsigned &width, unsigned &height) {
    Window root = 0;
    int x = 0, y = 0;
    unsigned border = 0, depth = 0;
    return XGetGeometry(m_display, window, &root, &x, &y, &width, &height, &border, &depth) != 0;
}

Window ChildWindows::create(Window parent, const XVisualInfo &visual, unsigned width, unsigned height) {
    auto &colormap = m_colormaps[visual.visualid];
    if (!colormap) {
        colormap = XCreateColormap(m_display, RootWindow(m_display, visual.screen), visual.visual, AllocNone);
    }
    XSetWindowAttributes attributes{};
    attributes.colormap = colormap;
    attributes.border_pixel = 0; // the parent's border cannot be copied to another depth
    attributes.bit_gravity = NorthWestGravity;
    return calls::createWindow(m_display, parent, 0, 0, width, height, 0, visual.depth, InputOutput, visual.visual,
                               CWColormap | CWBorderPixel | CWBitGravity, &attributes);
}

void ChildWindows::show(Window parent, Window child) {
    const std::lock_guard lock(m_mutex);
    auto entry = m_children.lower_bound({parent, 0});
    for (; entry != m_children.end() && entry->first.first == parent; ++entry) {
        auto &[window, width, height, isShown] = entry->second;
        const bool isWanted = window == child;
        if (isShown == isWanted) continue;
        (isWanted ? XMapWindow : XUnmapWindow)(m_display, window);
        isShown = isWanted;
    }
}

Window ChildWindows::childOf(Window parent, const XVisualInfo &visual) {
    unsigned width = 0, height = 0;
    if (!isThere(parent, width, height)) {
        forget(parent);
        return 0;
    }
    const std::lock_guard lock(m_mutex);
    const std::pair key(parent, visual.visualid);
    auto &child = m_children[key];
    // The parent's number may have come again after that window went with its child.
    unsigned childWidth = 0, childHeight = 0;
    if (child.window && !isThere(child.window, childWidth, childHeight)) child = {};
    if (!child.window) child = {create(parent, visual, width, height), width, height, false};
    if (!child.window) {
        m_children.erase(key);
        return 0;
    }
    fit(child, width, height);
    return child.window;
}

void ChildWindows::fit(Child &child, unsigned width, unsigned height) {
    if (child.width == width && child.height == height) return;
    XResizeWindow(m_display, child.window, width, height);
    XFlush(m_display);
    child.width = width;
    child.height = height;
}

void ChildWindows::follow(Window parent) {
    {
        const std::lock_guard lock(m_mutex);
        const auto first = m_children.lower_bound({parent, 0});
        if (first == m_children.end() || first->first.first != parent) return;
    }
    unsigned width = 0, height = 0;
    if (isThere(parent, width, height))
        resize(parent, width, height);
    else
        forget(parent);
}

void ChildWindows::resize(Window parent, unsigned width, unsigned height) {
    const std::lock_guard lock(m_mutex);
    auto child = m_children.lower_bound({parent, 0});
    for (; child != m_children.end() && child->first.first == parent; ++child) {
        fit(child->second, width, height);
    }
}

void ChildWindows::forget(Window parent) {
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_children, [&](const auto &entry) { return entry.first.first == parent; });
}

} // namespace host::platform::x11
