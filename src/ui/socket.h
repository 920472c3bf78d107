// The transport of the GUI link: a Unix domain stream socket. It transfers blocks of bytes and does not interpret them.
// The library is a client; the listening side is here for GUIs.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <sys/un.h>

namespace KZRIPC {

// "/tmp/NAME", for every user: one GUI serves every process of the machine. The program that links this code defines
// the path: the library and the command link socket_path.cpp.
[[nodiscard]] std::string socketPath(std::string_view name);

// A descriptor that clients share. The number is freed only when the last call on it has returned, so that no thread
// uses a number that the process has reused. Stays open unless it is closed explicitly.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor();

    [[nodiscard]] int number() const { return m_number; }
    // Shuts the connection down at once, for every thread that is blocked in a call.
    void close();

private:
    const int m_number;
    std::atomic<bool> m_isClosing = false;
};

class ServerSocket;

// One end of a connection. Copies use the same descriptor.
class Socket {
public:
    // Connects without waiting; failed() returns whether no listener of this user or of root accepted.
    explicit Socket(const std::string &path);
    // Takes ownership of an accepted descriptor.
    explicit Socket(int descriptor);
    Socket(const Socket &other);
    Socket &operator=(const Socket &) = delete;

    [[nodiscard]] bool failed() const { return m_failed; }
    // True from the start until close(), also when the connection was refused.
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    // Null once closed.
    [[nodiscard]] std::shared_ptr<Descriptor> descriptor() const;
    void close();

private:
    bool m_failed = false; // constant after construction
    std::atomic<bool> m_isOpen = true;
    mutable std::mutex m_mutex; // guards the fields below
    std::shared_ptr<Descriptor> m_descriptor;
};

// Sends and receives blocks; neither retries after a short transfer. A send to a closed peer raises SIGPIPE if the
// thread has not blocked it. One thread may send while another receives or closes.
class Client {
public:
    explicit Client(std::string_view name);
    // Waits for an application to connect.
    explicit Client(const ServerSocket &server);
    // Both clients then use one descriptor. A replaced or destroyed client leaves its descriptor open.
    Client(const Client &other);
    Client &operator=(const Client &other);

    [[nodiscard]] bool failed() const { return m_failed; }
    // True until this client is closed, which does not mean that there is a peer.
    [[nodiscard]] bool isOpen() const { return m_socket->isOpen(); }
    // Bytes sent, or a negative number. Senders take turns.
    int32_t send(const void *bytes, size_t count);
    // Bytes received, 0 at the end of the stream, or a negative number.
    [[nodiscard]] int32_t receive(void *bytes, size_t count);
    void close() { m_socket->close(); }
    // For poll(). Negative once closed; valid until then.
    [[nodiscard]] int descriptor() const;

private:
    bool m_failed;
    std::unique_ptr<Socket> m_socket; // assignment replaces it: not while another thread uses this client
    std::mutex m_sendLock;
};

// Listens. An existing socket file is replaced, whether left by an earlier run or used by a running listener. The file
// is not removed at the end.
class ServerSocket {
public:
    ServerSocket(std::string_view name, int backlog);
    ServerSocket(const ServerSocket &) = delete;
    ServerSocket &operator=(const ServerSocket &) = delete;
    ~ServerSocket();

    [[nodiscard]] bool failed() const { return m_failed; }
    [[nodiscard]] const std::string &path() const { return m_path; }
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    bool m_failed;
    std::string m_path;
    int m_descriptor;
};

} // namespace KZRIPC
