// One application that is connected: puts its records together from what arrives, and sends it commands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/message_builders.h"
#include "ui/socket.h"

class MonitoredApplication {
public:
    // Takes the connection over.
    explicit MonitoredApplication(const KZRIPC::Client &client) : m_client(client) {}
    MonitoredApplication(const MonitoredApplication &) = delete;
    MonitoredApplication &operator=(const MonitoredApplication &) = delete;
    ~MonitoredApplication() { m_client.close(); }

    // For poll(); negative once the connection has ended.
    [[nodiscard]] int descriptor() const { return m_client.descriptor(); }
    // Takes what has arrived, without waiting, and gives the record that it completes. Notices the end.
    [[nodiscard]] std::optional<ui::messages::Message> receive();
    // False when the application does not take it now. Never waits.
    bool send(const ui::messages::Message &command);

    // 0 and empty before the hello.
    [[nodiscard]] int32_t processNumber() const { return m_processNumber; }
    // As the system knows the command; empty where it does not say.
    [[nodiscard]] const std::string &commandName() const { return m_commandName; }

private:
    KZRIPC::Client m_client;
    ui::messages::Message m_arriving{};
    size_t m_arrived = 0;
    int32_t m_processNumber = 0;
    std::string m_commandName;
};
