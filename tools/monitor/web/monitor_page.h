// The monitor in a browser: serves a page in addition to the terminal.
#pragma once

#include <string>

#include "tools/monitor/web/page_server.h"
#include "tools/monitor/web/web_output.h"

class MonitorPage {
public:
    // port: 0 for any. Fails the command when the port cannot be used.
    explicit MonitorPage(int port);
    MonitorPage(const MonitorPage &) = delete;
    MonitorPage &operator=(const MonitorPage &) = delete;
    ~MonitorPage();

    [[nodiscard]] std::string address() const { return m_server.address(); }
    // For MonitorOptions; both are valid as long as this object.
    [[nodiscard]] MonitorOutput &output() { return m_output; }
    [[nodiscard]] int commands() const { return m_commands.ends[0]; }

private:
    struct Pipe {
        Pipe();
        Pipe(const Pipe &) = delete;
        Pipe &operator=(const Pipe &) = delete;
        ~Pipe();
        // False if the pipe is full. Lines are short enough to be written atomically.
        [[nodiscard]] bool write(const std::string &line) const;
        int ends[2] = {-1, -1};
    };

    History m_history;
    WebOutput m_output{m_history};
    Pipe m_commands;
    PageServer m_server;
};
