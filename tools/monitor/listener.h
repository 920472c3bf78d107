// The monitor's place at the socket of the GUI link. It is taken from nobody who lives, and given back at the end.
#pragma once

#include <optional>
#include <string>
#include <sys/stat.h>

#include "ui/socket.h"

class Listener {
public:
    // Fails the command when somebody listens there already, and says who, or when there is a file that is no socket. A
    // socket without a listener is replaced. Every user may connect: who it is tells accept().
    Listener();
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    // Removes the socket file, unless another listener has put its own there.
    ~Listener();

    [[nodiscard]] const std::string &path() const { return m_server->path(); }
    // Readable when somebody waits.
    [[nodiscard]] int descriptor() const { return m_server->descriptor(); }

    struct Arrival {
        std::optional<KZRIPC::Client> client; // empty when no descriptor was left or the process was sent away
        std::string refusal;                  // whom accept() has sent away; empty for nobody
    };
    // Takes who waits. Applications of our own user are welcome; with root, all are.
    [[nodiscard]] Arrival accept() const;

private:
    std::optional<KZRIPC::ServerSocket> m_server;
    struct stat m_file {}; // ours
};
