// A child process in its own process group, so that all processes that it started can be ended with it.
#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

class ChildProcess {
public:
    // words: the program, searched in PATH, and its arguments. environment: "NAME=VALUE", replacing variables of this
    // process. output: a file for both output streams; empty for none. kept: a descriptor that the process inherits at
    // the same number, or -1. isStarted() returns whether the process started.
    ChildProcess(const std::vector<std::string> &words, const std::vector<std::string> &environment,
                 const std::string &output, int kept = -1);
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    // Ends the process.
    ~ChildProcess() { end(); }

    [[nodiscard]] bool isStarted() const { return m_process > 0; }
    // The status of waitpid, after the process has ended.
    [[nodiscard]] std::optional<int> poll();
    // Sends the process SIGTERM, and after two seconds SIGKILL to the group.
    void end();

private:
    pid_t m_process = -1;
    std::optional<int> m_status;
};
