#include "tools/monitor/web/monitor_page.h"

#include <fcntl.h>
#include <unistd.h>

#include "tools/command/failure.h"

MonitorPage::Pipe::Pipe() {
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) failCommand("no pipe can be created");
}

MonitorPage::Pipe::~Pipe() {
    for (const int end : ends)
        close(end);
}

bool MonitorPage::Pipe::write(const std::string &line) const {
    return ::write(ends[1], line.data(), line.size()) == static_cast<ssize_t>(line.size());
}

MonitorPage::MonitorPage(int port)
    : m_server(port, m_history, [this](const std::string &line) { return m_commands.write(line); }) {}

MonitorPage::~MonitorPage() = default;
