// A running "zelvane monitor" whose output is read here, and which gets typed commands if it has a terminal.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

class RunningMonitor {
public:
    enum Input { Nothing, Terminal };

    RunningMonitor(std::vector<std::string> options, Input input = Nothing);
    RunningMonitor(const RunningMonitor &) = delete;
    RunningMonitor &operator=(const RunningMonitor &) = delete;
    ~RunningMonitor();

    // The next line that contains the text; a test whose monitor never writes it fails.
    std::string lineWith(const std::string &text);
    // What it writes up to its end.
    std::string rest();
    void type(const std::string &command);
    void signal(int number);
    // Closes the reading end of its output.
    void stopReading();
    // Waits for the end; the exit code, or minus the signal.
    int exitCode();

private:
    std::string nextLine(); // empty at the end of the output

    pid_t m_process = -1;
    int m_output = -1;
    int m_input = -1;
    std::string m_read;
};
