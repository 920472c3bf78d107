// A process with a group of its own, so that it goes with all that it started.
#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

class ChildProcess {
public:
    // Looked for in PATH. environment: "NAME=VALUE", in place of ours where a name stands in both. output: a file for
    // both streams; empty for none. kept: a descriptor that the process gets at the same number, or -1. isStarted()
    // tells whether it could be started.
    ChildProcess(const std::vector<std::string> &words, const std::vector<std::string> &environment,
                 const std::string &output, int kept = -1);
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    // Ends it.
    ~ChildProcess() { end(); }

    [[nodiscard]] bool isStarted() const { return m_process > 0; }
    // As waitpid gives it, once it has ended.
    [[nodiscard]] std::optional<int> poll();
    // Asks the process to end, and after two seconds does not ask the group any more.
    void end();

private:
    pid_t m_process = -1;
    std::optional<int> m_status;
};
