#include "host/platform/x11/child_windows.h"

#include <algorithm>

#include "host/platform/x11/x_calls.h"

namespace host::platform::x11 {

Window ChildWindows::create(Window parent, const XVisualInfo &visual, unsigned width, unsigned height) {
    auto &colormap = m_colormaps[visual.visualid];
    if (!colormap) {
        colormap = XCreateColormap(m_display, RootWindow(m_display, visual.screen), visual.visual, AllocNone);
    }
    XSetWindowAttributes attributes{};
    attributes.colormap = colormap;
    attributes.border_pixel = 0; // the parent's border cannot be copied to another depth
    attributes.bit_gravity = NorthWestGravity;
    attributes.event_mask = StructureNotifyMask; // an application may destroy all children of its window
    return calls::createWindow(m_display, parent, 0, 0, width, height, 0, visual.depth, InputOutput, visual.visual,
                               CWColormap | CWBorderPixel | CWBitGravity | CWEventMask, &attributes);
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

Window ChildWindows::childOf(Window parent, const XVisualInfo &visual, unsigned width, unsigned height) {
    const std::lock_guard lock(m_mutex);
    const std::pair key(parent, visual.visualid);
    auto &child = m_children[key];
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

void ChildWindows::resize(Window parent, unsigned width, unsigned height) {
    const std::lock_guard lock(m_mutex);
    auto child = m_children.lower_bound({parent, 0});
    for (; child != m_children.end() && child->first.first == parent; ++child) {
        fit(child->second, width, height);
    }
}

bool ChildWindows::has(Window child) {
    const std::lock_guard lock(m_mutex);
    return std::ranges::any_of(m_children, [&](const auto &entry) { return entry.second.window == child; });
}

void ChildWindows::forget(Window window) {
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_children,
                  [&](const auto &entry) { return entry.first.first == window || entry.second.window == window; });
}

} // namespace host::platform::x11
