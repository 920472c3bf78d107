// Starts a program and represents it towards the parent process.
#pragma once

#include <csignal>
#include <string>
#include <sys/types.h>
#include <vector>

// The exit status when the program was not started.
inline constexpr int runFailure = 125;

// words: the program, searched in PATH, and its arguments. Uses this process's environment and the signal mask of a
// program started by a shell. Fails the command if the program cannot be started.
[[nodiscard]] pid_t startProgram(const std::vector<std::string> &words);

// While it lives, signals that end or control a program are held for relayTo().
class SignalRelay {
public:
    SignalRelay();
    SignalRelay(const SignalRelay &) = delete;
    SignalRelay &operator=(const SignalRelay &) = delete;
    ~SignalRelay();

    // Waits for the program's end and forwards signals to it meanwhile. Returns the exit status, or 128 and the signal.
    [[nodiscard]] int relayTo(pid_t program) const;

private:
    sigset_t m_taken;
    sigset_t m_before;
};
