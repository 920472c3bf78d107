// A scripted GUI. Other processes of the machine may connect meanwhile and are rejected.
#pragma once

#include <optional>
#include <string>

#include "ui/message_builders.h"
#include "ui/socket.h"

class ScriptedGui {
public:
    ScriptedGui();
    ~ScriptedGui();

    // Waits for a connection of this process; the test fails if there is none. Drops the previous connection.
    void accept();
    // False if there was none within the time.
    [[nodiscard]] bool isConnectedWithin(int timeoutMs);
    // The next record; empty at the end of the stream.
    [[nodiscard]] std::optional<ui::messages::Message> read();
    // Reads up to the record of this type, which must arrive.
    [[nodiscard]] ui::messages::Message readUntil(uint32_t type);
    void send(const ui::messages::Message &message) { sendBytes(&message, sizeof message); }
    void sendBytes(const void *bytes, size_t count) { m_application->send(bytes, count); }
    void close() { m_application->close(); }
    // Releases the connection, which then outlives the GUI.
    [[nodiscard]] KZRIPC::Client release();

private:
    KZRIPC::ServerSocket m_server;
    std::optional<KZRIPC::Client> m_application;
};

// The text field of types 2 and 6 to 8.
[[nodiscard]] std::string textOf(const ui::messages::Message &message);

// Records the modes that it is called with, as text: "1 0".
void noteRenderMode(uint8_t mode);
// Waits for that many modes and returns all of them.
[[nodiscard]] std::string renderModes(size_t count);
