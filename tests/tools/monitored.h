// A running "zelvane monitor" whose output is read here, and which gets typed commands if it has a terminal. Functions
// wait as long as the monitor runs.
#pragma once

#include <cstdio>
#include <string>
#include <sys/types.h>

class RunningMonitor {
public:
    enum Input { Nothing, Terminal };

    // launcher: a command that starts the monitor, such as prlimit with its options.
    explicit RunningMonitor(const std::string &options, Input input = Nothing, const std::string &launcher = {});
    RunningMonitor(const RunningMonitor &) = delete;
    RunningMonitor &operator=(const RunningMonitor &) = delete;
    ~RunningMonitor();

    // The next line that contains the text.
    std::string lineWith(const std::string &text);
    // The rest of its output.
    std::string rest();
    void type(const std::string &command);
    void signal(int number);
    // The processor time used so far, in clock ticks.
    [[nodiscard]] long ticksUsed() const;
    // Stops reading and waits for the end. Returns the exit code, or minus the signal.
    int exitCode();

private:
    FILE *m_output;
    pid_t m_process;
    int m_input = -1;
};
