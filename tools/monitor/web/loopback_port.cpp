#include "tools/monitor/web/loopback_port.h"

#include <arpa/inet.h>
#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

int whyNotFree(int port) {
    const int probe = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (probe < 0) return errno;
    const int yes = 1;
    setsockopt(probe, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const bool isFree =
        bind(probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 && listen(probe, 1) == 0;
    const int error = isFree ? 0 : errno;
    close(probe);
    return error;
}

int nextFreePort(int port) {
    for (int next = port + 1; next <= 65535; ++next) {
        if (whyNotFree(next) == 0) return next;
    }
    return 0;
}
