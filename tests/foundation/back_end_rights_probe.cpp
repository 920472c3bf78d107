// What the ES back ends make of their variables, which they look up themselves; run as foreign_rights_probe is.
#include <cstdio>

#include "common/desktop_clients.h"

int main() {
    std::puts(servesDesktopClients() ? "desktop client" : "device client");
}
