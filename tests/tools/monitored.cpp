#include "monitored.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

RunningMonitor::RunningMonitor(const std::string &options, Input input, const std::string &launcher) {
    std::string terminal = "/dev/null";
    if (input == Terminal) {
        m_input = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (grantpt(m_input) != 0 || unlockpt(m_input) != 0) throw std::runtime_error("no terminal");
        terminal = ptsname(m_input);
    }
    const std::string command = launcher + " " ZELVANE_COMMAND " monitor " + options;
    m_output = popen(("echo $$; exec " + command + " <" + terminal).c_str(), "re");
    m_process = std::stoi(lineWith(""));
}

RunningMonitor::~RunningMonitor() {
    if (m_output) {
        signal(SIGKILL);
        pclose(m_output);
    }
    close(m_input);
}

std::string RunningMonitor::lineWith(const std::string &text) {
    char line[16384];
    while (fgets(line, sizeof line, m_output)) {
        const std::string found = line;
        if (found.find(text) != std::string::npos) return found.substr(0, found.size() - 1);
    }
    throw std::runtime_error("the monitor ended without: " + text);
}

std::string RunningMonitor::rest() {
    std::string all;
    for (int byte = 0; (byte = fgetc(m_output)) != EOF;)
        all += static_cast<char>(byte);
    return all;
}

void RunningMonitor::type(const std::string &command) {
    if (write(m_input, (command + "\n").data(), command.size() + 1) < 0) throw std::runtime_error("no terminal");
}

void RunningMonitor::signal(int number) {
    kill(m_process, number);
}

long RunningMonitor::ticksUsed() const {
    std::ifstream file("/proc/" + std::to_string(m_process) + "/stat");
    std::string word;
    for (int field = 1; field < 14; ++field)
        file >> word;
    long user = 0, system = 0;
    file >> user >> system;
    return user + system;
}

int RunningMonitor::exitCode() {
    const int status = pclose(std::exchange(m_output, nullptr));
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}
