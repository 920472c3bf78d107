// One connected application: assembles its records from the received bytes, and sends it commands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/message_builders.h"
#include "ui/socket.h"

class MonitoredApplication {
public:
    // Takes ownership of the connection.
    explicit MonitoredApplication(const KZRIPC::Client &client) : m_client(client) {}
    MonitoredApplication(const MonitoredApplication &) = delete;
    MonitoredApplication &operator=(const MonitoredApplication &) = delete;
    ~MonitoredApplication() { m_client.close(); }

    // For poll(); negative once the connection has ended.
    [[nodiscard]] int descriptor() const { return m_client.descriptor(); }
    // Reads the data that has arrived, without waiting, and returns the record that it completes. Detects the end of
    // the connection.
    [[nodiscard]] std::optional<ui::messages::Message> receive();
    // False if the application cannot receive it now. Never waits.
    bool send(const ui::messages::Message &command);

    // 0 and empty before the hello.
    [[nodiscard]] int32_t processNumber() const { return m_processNumber; }
    // The command name that the system reports; empty if it does not.
    [[nodiscard]] const std::string &commandName() const { return m_commandName; }

private:
    KZRIPC::Client m_client;
    ui::messages::Message m_arriving{};
    size_t m_arrived = 0;
    int32_t m_processNumber = 0;
    std::string m_commandName;
};
