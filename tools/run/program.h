// Starts a program and stands in for it towards whoever started us.
#pragma once

#include <csignal>
#include <string>
#include <sys/types.h>
#include <vector>

// The exit status when the program was not started.
inline constexpr int runFailure = 125;

// Looked for in PATH, with our environment and the signal mask that a program of the shell has. Fails the command when
// it cannot be started.
[[nodiscard]] pid_t startProgram(const std::vector<std::string> &words);

// While it lives, signals that end or steer a program are kept for relayTo().
class SignalRelay {
public:
    SignalRelay();
    SignalRelay(const SignalRelay &) = delete;
    SignalRelay &operator=(const SignalRelay &) = delete;
    ~SignalRelay();

    // Waits for the program's end and passes signals on to it meanwhile. The exit status, or 128 and the signal.
    [[nodiscard]] int relayTo(pid_t program) const;

private:
    sigset_t m_taken;
    sigset_t m_before;
};
