#include "monitored.h"

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Long enough for a loaded machine; only a test that fails waits it out.
constexpr int patienceMs = 60000;

} // namespace

RunningMonitor::RunningMonitor(std::vector<std::string> options, Input input) {
    int output[2], terminal = -1;
    if (pipe2(output, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    if (input == Terminal && openpty(&m_input, &terminal, nullptr, nullptr, nullptr) != 0)
        throw std::runtime_error("no terminal");
    if (input == Nothing) terminal = open("/dev/null", O_RDONLY);

    options.insert(options.begin(), {ZELVANE_COMMAND, "monitor"});
    std::vector<char *> arguments;
    for (auto &option : options)
        arguments.push_back(option.data());
    arguments.push_back(nullptr);
    m_process = fork();
    if (m_process == 0) {
        dup2(terminal, STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    close(output[1]);
    close(terminal);
    m_output = output[0];
}

RunningMonitor::~RunningMonitor() {
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_output);
    close(m_input);
}

std::string RunningMonitor::nextLine() {
    size_t end = 0;
    while ((end = m_read.find('\n')) == std::string::npos) {
        pollfd waiting{m_output, POLLIN, 0};
        if (poll(&waiting, 1, patienceMs) != 1) throw std::runtime_error("the monitor writes nothing more: " + m_read);
        char bytes[4096];
        const ssize_t count = read(m_output, bytes, sizeof bytes);
        if (count <= 0) return {};
        m_read.append(bytes, count);
    }
    const std::string line = m_read.substr(0, end + 1);
    m_read.erase(0, end + 1);
    return line;
}

std::string RunningMonitor::lineWith(const std::string &text) {
    for (;;) {
        std::string line = nextLine();
        if (line.empty()) throw std::runtime_error("the monitor ended without: " + text);
        if (line.find(text) == std::string::npos) continue;
        line.pop_back();
        return line;
    }
}

std::string RunningMonitor::rest() {
    std::string all;
    for (std::string line = nextLine(); !line.empty(); line = nextLine())
        all += line;
    return all;
}

void RunningMonitor::type(const std::string &command) {
    if (write(m_input, (command + "\n").data(), command.size() + 1) < 0) throw std::runtime_error("no terminal");
}

void RunningMonitor::signal(int number) {
    kill(m_process, number);
}

void RunningMonitor::stopReading() {
    close(m_output);
    m_output = -1;
}

int RunningMonitor::exitCode() {
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}
