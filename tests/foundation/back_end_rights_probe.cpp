// Prints the variables that the ES back ends read, which they look up themselves; run as foreign_rights_probe is.
#include <cstdio>
#include <unistd.h>

#include "common/desktop_clients.h"

int main() {
    std::puts(servesDesktopClients() ? "desktop client" : "device client");
    std::fflush(stdout);
    _exit(0); // the leak check has no access to such a process
}
