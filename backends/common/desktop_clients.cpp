#include "common/desktop_clients.h"

#include "common/find_variable.h"

#include <string_view>

bool servesDesktopClients() {
    static const bool serves = [] {
        const char *const value = findVariable("ZELVANE_DESKTOP_CLIENTS");
        return value && value == std::string_view("1");
    }();
    return serves;
}
