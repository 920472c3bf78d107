#include "ui/scripted_gui.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "foundation/product.h"

using ui::messages::Message;

namespace {

// Long enough for a loaded machine; only a failing test waits this long.
constexpr int patienceMs = 60000;

bool isReadable(int descriptor, int timeoutMs) {
    pollfd waiting{descriptor, POLLIN, 0};
    return poll(&waiting, 1, timeoutMs) == 1;
}

bool isOurs(int descriptor) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.pid == getpid();
}

struct Noted {
    std::mutex mutex;
    std::condition_variable grown;
    std::vector<int> modes;
};
// Never destroyed: the link's threads run while the process ends.
Noted &noted = *new Noted;

} // namespace

ScriptedGui::ScriptedGui() : m_server(productName, 16) {
    if (m_server.failed()) throw std::runtime_error("another GUI holds " + m_server.path());
}

ScriptedGui::~ScriptedGui() {
    if (m_application) m_application->close();
    unlink(m_server.path().c_str());
}

void ScriptedGui::accept() {
    if (!isConnectedWithin(patienceMs)) throw std::runtime_error("nobody connected");
}

bool ScriptedGui::isConnectedWithin(int timeoutMs) {
    if (m_application) m_application->close();
    while (isReadable(m_server.descriptor(), timeoutMs)) {
        m_application.emplace(m_server);
        if (isOurs(m_application->descriptor())) return true;
        m_application->close();
    }
    return false;
}

std::optional<Message> ScriptedGui::read() {
    Message message;
    for (size_t have = 0; have < sizeof message;) {
        if (!isReadable(m_application->descriptor(), patienceMs)) throw std::runtime_error("no record came");
        const int32_t received = m_application->receive(message.bytes + have, sizeof message - have);
        if (received <= 0) return std::nullopt;
        have += received;
    }
    return message;
}

Message ScriptedGui::readUntil(uint32_t type) {
    while (const auto message = read()) {
        if (message->header.type == type) return *message;
    }
    throw std::runtime_error("the connection ended");
}

KZRIPC::Client ScriptedGui::release() {
    const KZRIPC::Client application = *m_application;
    m_application.reset();
    return application;
}

std::string textOf(const Message &message) {
    return message.text.text;
}

void noteRenderMode(uint8_t mode) {
    const std::lock_guard lock(noted.mutex);
    noted.modes.push_back(mode);
    noted.grown.notify_all();
}

std::string renderModes(size_t count) {
    std::unique_lock lock(noted.mutex);
    noted.grown.wait_for(lock, std::chrono::milliseconds(patienceMs), [&] { return noted.modes.size() >= count; });
    std::string text;
    for (const int mode : noted.modes)
        text += (text.empty() ? "" : " ") + std::to_string(mode);
    return text;
}
