#include "tools/monitor/application.h"

#include <fstream>
#include <poll.h>

using ui::messages::Message;

namespace {

std::string commandOf(int32_t processNumber) {
    std::ifstream file("/proc/" + std::to_string(processNumber) + "/comm");
    std::string name;
    std::getline(file, name);
    return name;
}

bool takesARecord(int descriptor) {
    pollfd room{descriptor, POLLOUT, 0};
    return poll(&room, 1, 0) == 1 && room.revents == POLLOUT;
}

} // namespace

std::optional<Message> MonitoredApplication::receive() {
    const int32_t received = m_client.receive(m_arriving.bytes + m_arrived, sizeof m_arriving - m_arrived);
    if (received <= 0) {
        m_client.close();
        return std::nullopt;
    }
    m_arrived += received;
    if (m_arrived < sizeof m_arriving) return std::nullopt;
    m_arrived = 0;
    if (m_arriving.header.type == ZV_PROCESS_HELLO) {
        m_processNumber = m_arriving.processHello.processNumber;
        m_commandName = commandOf(m_processNumber);
    }
    return m_arriving;
}

bool MonitoredApplication::send(const Message &command) {
    return takesARecord(descriptor()) && m_client.send(&command, sizeof command) == sizeof command;
}
