#include "host/platform/x11/window_info.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include "host/platform/x11/connection.h"

namespace host::platform::x11 {

namespace {

// In 32-bit units. Longer titles are cut.
constexpr long titleLimit = 4096;

std::string netTitle(Display *display, Window window) {
    const Atom property = XInternAtom(display, "_NET_WM_NAME", False);
    const Atom utf8 = XInternAtom(display, "UTF8_STRING", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char *data = nullptr;
    std::string title;
    if (XGetWindowProperty(display, window, property, 0, titleLimit, False, utf8, &type, &format, &count, &rest,
                           &data) != Success) {
        return title;
    }
    if (type == utf8 && format == 8) title.assign(reinterpret_cast<const char *>(data), count);
    if (data) XFree(data);
    return title;
}

std::string plainTitle(Display *display, Window window) {
    XTextProperty property{};
    std::string title;
    if (!XGetWMName(display, window, &property) || !property.value) return title;
    char **list = nullptr;
    int count = 0;
    if (Xutf8TextPropertyToTextList(display, &property, &list, &count) >= Success && count > 0) title = list[0];
    if (list) XFreeStringList(list);
    XFree(property.value);
    return title;
}

// None for a child of the root window, and for a destroyed window.
Window parentOf(Display *display, Window window) {
    Window root = None, parent = None, *children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &parent, &children, &count)) return None;
    if (children) XFree(children);
    return parent == root ? None : parent;
}

// Views are often children of the window with the title.
std::string titleOf(Connection &connection, Window window) {
    Display *display = connection.display();
    std::string title;
    for (; window && title.empty(); window = parentOf(display, window)) {
        connection.windows().watchTitle(window);
        title = netTitle(display, window);
        if (title.empty()) title = plainTitle(display, window);
    }
    return title;
}

} // namespace

void viewSize(const View &view, int32_t *width, int32_t *height) {
    auto *connection = view.window ? Connection::find(view.display) : nullptr;
    const auto facts = connection ? connection->askWindow(view) : std::nullopt;
    if (!facts) return;
    connection->children().resize(view.window, facts->width, facts->height);
    if (width) *width = static_cast<int32_t>(facts->width);
    if (height) *height = static_cast<int32_t>(facts->height);
}

std::string viewTitle(const View &view) {
    auto *connection = view.window ? Connection::find(view.display) : nullptr;
    if (!connection) return {};
    // For a window whose creation has not reached the server, windowFacts waits until it has, so the title can be read.
    if (!connection->windowFacts(view)) return {};
    if (const auto known = connection->windows().findTitle(view.window)) return *known;
    const auto title = titleOf(*connection, view.window);
    connection->windows().keepTitle(view.window, title);
    return title;
}

} // namespace host::platform::x11
