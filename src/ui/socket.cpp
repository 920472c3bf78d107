#include "ui/socket.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include "ui/platform/peer.h"

namespace KZRIPC {

namespace {

struct Address {
    sockaddr_un address{};
    socklen_t length = 0; // 0 when the path does not fit

    explicit Address(const std::string &path) {
        if (path.size() >= sizeof address.sun_path) return;
        address.sun_family = AF_UNIX;
        memcpy(address.sun_path, path.c_str(), path.size());
        length = static_cast<socklen_t>(path.size() + 2);
    }
    [[nodiscard]] const sockaddr *get() const { return reinterpret_cast<const sockaddr *>(&address); }
};

bool setBlocking(int descriptor, bool isBlocking) {
    const int flags = fcntl(descriptor, F_GETFL);
    return flags >= 0 && fcntl(descriptor, F_SETFL, isBlocking ? flags & ~O_NONBLOCK : flags | O_NONBLOCK) == 0;
}

// Checks the peer, since any user can listen in the temporary directory, and records are for this user only.
bool isTrusted(int descriptor) {
    const auto user = peerUser(descriptor);
    return user && (*user == geteuid() || *user == 0);
}

// Does not wait: a listener with a full queue has stopped and counts as none.
bool connectTo(const std::string &path, int descriptor) {
    const Address address(path);
    if (descriptor < 0 || !address.length || !setBlocking(descriptor, false)) return false;
    const bool isConnected = connect(descriptor, address.get(), address.length) == 0;
    if (!setBlocking(descriptor, true) || !isConnected) return false;
    if (isTrusted(descriptor)) return true;
    shutdown(descriptor, SHUT_RDWR);
    return false;
}

bool listenAt(const std::string &path, int descriptor, int backlog) {
    const Address address(path);
    if (descriptor < 0 || !address.length) return false;
    unlink(path.c_str());
    return bind(descriptor, address.get(), address.length) >= 0 && listen(descriptor, backlog) >= 0;
}

} // namespace

Descriptor::~Descriptor() {
    if (m_isClosing && m_number >= 0) ::close(m_number);
}

void Descriptor::close() {
    m_isClosing = true;
    if (m_number >= 0) shutdown(m_number, SHUT_RDWR);
}

Socket::Socket(const std::string &path)
    : m_descriptor(std::make_shared<Descriptor>(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))) {
    m_failed = !connectTo(path, m_descriptor->number());
}

Socket::Socket(int descriptor) : m_failed(descriptor < 0), m_descriptor(std::make_shared<Descriptor>(descriptor)) {}

Socket::Socket(const Socket &other)
    : m_failed(other.m_failed), m_isOpen(other.isOpen()), m_descriptor(other.descriptor()) {}

std::shared_ptr<Descriptor> Socket::descriptor() const {
    const std::lock_guard lock(m_mutex);
    return m_descriptor;
}

void Socket::close() {
    std::shared_ptr<Descriptor> closing;
    {
        const std::lock_guard lock(m_mutex);
        closing.swap(m_descriptor);
    }
    if (closing) closing->close();
    m_isOpen = false;
}

Client::Client(std::string_view name) : m_socket(std::make_unique<Socket>(socketPath(name))) {
    m_failed = m_socket->failed();
}

Client::Client(const ServerSocket &server)
    : m_socket(std::make_unique<Socket>(accept4(server.descriptor(), nullptr, nullptr, SOCK_CLOEXEC))) {
    m_failed = m_socket->failed();
}

Client::Client(const Client &other) : m_failed(other.m_failed), m_socket(std::make_unique<Socket>(*other.m_socket)) {}

Client &Client::operator=(const Client &other) {
    m_socket = std::make_unique<Socket>(*other.m_socket);
    m_failed = other.m_failed;
    return *this;
}

int32_t Client::send(const void *bytes, size_t count) {
    const std::lock_guard lock(m_sendLock);
    const auto descriptor = m_socket->descriptor();
    return descriptor ? static_cast<int32_t>(::send(descriptor->number(), bytes, count, 0)) : -1;
}

int32_t Client::receive(void *bytes, size_t count) {
    const auto descriptor = m_socket->descriptor();
    return descriptor ? static_cast<int32_t>(recv(descriptor->number(), bytes, count, 0)) : -1;
}

int Client::descriptor() const {
    const auto descriptor = m_socket->descriptor();
    return descriptor ? descriptor->number() : -1;
}

ServerSocket::ServerSocket(std::string_view name, int backlog)
    : m_path(socketPath(name)), m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    m_failed = !listenAt(m_path, m_descriptor, backlog);
}

ServerSocket::~ServerSocket() {
    if (m_descriptor >= 0) close(m_descriptor);
}

} // namespace KZRIPC
