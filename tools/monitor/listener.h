// The monitor's listening socket of the GUI link. It never replaces a live listener, and is removed at the end.
#pragma once

#include <optional>
#include <string>
#include <sys/stat.h>

#include "ui/socket.h"

class Listener {
public:
    // Fails the command when another process listens there, naming it, or when there is a file that is not a socket. A
    // socket without a listener is replaced. Every user may connect: accept() checks the user.
    Listener();
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    // Removes the socket file, unless another listener has created its own there.
    ~Listener();

    [[nodiscard]] const std::string &path() const { return m_server->path(); }
    // Readable when a connection is waiting.
    [[nodiscard]] int descriptor() const { return m_server->descriptor(); }

    struct Arrival {
        std::optional<KZRIPC::Client> client; // empty when no descriptor was left or the process was rejected
        std::string refusal;                  // the process that accept() has rejected; empty for none
    };
    // Accepts a waiting connection. Applications of the same user are accepted; root's monitor accepts all.
    [[nodiscard]] Arrival accept() const;

private:
    std::optional<KZRIPC::ServerSocket> m_server;
    struct stat m_file {}; // the file that this object created
};
