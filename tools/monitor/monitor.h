// The listening side of the GUI link in a terminal. Everything runs on one thread, in one poll loop: records of the
// applications, commands of the user, and the descriptor that ends it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tools/monitor/application.h"
#include "tools/monitor/output.h"
#include "ui/socket.h"

class Monitor {
public:
    // ending: a descriptor that is readable when the monitor is to end; it stays the caller's.
    // takesCommands: read lines of standard input as commands.
    Monitor(std::unique_ptr<MonitorOutput> output, int ending, bool takesCommands, bool endsWithTheFirst);
    Monitor(const Monitor &) = delete;
    Monitor &operator=(const Monitor &) = delete;
    // Removes the socket file, unless another listener has put its own there.
    ~Monitor();

    // False when the socket cannot be made.
    [[nodiscard]] bool isListening() const { return !m_server.failed(); }
    // Until the user, the descriptor or the end of the first application ends it. What applications that are gone by
    // then have left is still shown. SIGPIPE must be ignored: a reader of the output that goes ends the monitor.
    void run();

private:
    void accept();
    void readRecord(MonitoredApplication &application);
    void dropEnded();
    void readWhatIsLeft();
    void readCommands();
    // A line such as "w", "W 1234", "wire off" or "d".
    void obey(const std::string &line);

    std::unique_ptr<MonitorOutput> m_output;
    KZRIPC::ServerSocket m_server;
    uint64_t m_socketFile; // which file at the path is ours
    int m_ending;
    bool m_takesCommands;
    bool m_endsWithTheFirst;
    bool m_isEnding = false;
    std::string m_typed; // a line that is not complete yet
    std::vector<std::unique_ptr<MonitoredApplication>> m_applications;
};
