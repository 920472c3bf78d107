#include "host/platform/x11/window_watch.h"

namespace host::platform::x11 {

void WindowWatch::readEvents() {
    const std::lock_guard lock(m_mutex);
    while (XEventsQueued(m_display, QueuedAfterReading) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        handle(event);
    }
}

void WindowWatch::takeReadEvents() {
    if (QLength(m_display) > 0) readEvents();
}

std::optional<WindowFacts> WindowWatch::find(Window window) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_windows.find(window);
    return found == m_windows.end() ? std::nullopt : found->second.facts;
}

std::optional<WindowFacts> WindowWatch::watch(Window window) {
    const std::lock_guard lock(m_mutex);
    // Events are selected before the query, so that no change between the two is missed.
    select(window, StructureNotifyMask);
    XWindowAttributes attributes{};
    if (!XGetWindowAttributes(m_display, window, &attributes)) {
        m_windows.erase(window);
        return std::nullopt;
    }
    const bool isOnScreen = XScreenNumberOfScreen(attributes.screen) == m_screen;
    return m_windows[window].facts = WindowFacts{
               .visual = XVisualIDFromVisual(attributes.visual),
               .width = static_cast<unsigned>(attributes.width),
               .height = static_cast<unsigned>(attributes.height),
               .canBeDrawnTo = isOnScreen && attributes.c_class == InputOutput,
           };
}

std::optional<std::string> WindowWatch::findTitle(Window window) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_windows.find(window);
    return found == m_windows.end() ? std::nullopt : found->second.title;
}

void WindowWatch::watchTitle(Window window) {
    const std::lock_guard lock(m_mutex);
    select(window, StructureNotifyMask | PropertyChangeMask);
}

void WindowWatch::keepTitle(Window window, const std::string &title) {
    const std::lock_guard lock(m_mutex);
    m_windows[window].title = title;
}

void WindowWatch::select(Window window, long events) {
    auto &watched = m_windows[window];
    if ((watched.events | events) == watched.events) return;
    watched.events |= events;
    XSelectInput(m_display, window, watched.events);
}

void WindowWatch::handle(const XEvent &event) {
    switch (event.type) {
    case ConfigureNotify: {
        const auto &change = event.xconfigure;
        const auto found = m_windows.find(change.window);
        if (found == m_windows.end() || !found->second.facts) return;
        found->second.facts->width = static_cast<unsigned>(change.width);
        found->second.facts->height = static_cast<unsigned>(change.height);
        m_children.resize(change.window, found->second.facts->width, found->second.facts->height);
        return;
    }
    case DestroyNotify:
        m_windows.erase(event.xdestroywindow.window);
        m_children.forget(event.xdestroywindow.window);
        forgetTitles();
        return;
    case ReparentNotify:
    case PropertyNotify:
        forgetTitles();
        return;
    default:
        return;
    }
}

// Forgets the titles of all windows: changes are rare, and which titles depend on a window is not recorded.
void WindowWatch::forgetTitles() {
    for (auto &[window, watched] : m_windows)
        watched.title.reset();
}

} // namespace host::platform::x11
