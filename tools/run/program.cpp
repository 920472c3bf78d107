#include "tools/run/program.h"

#include <cstring>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tools/command/failure.h"

namespace {

constexpr int relayed[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGUSR1, SIGUSR2};

} // namespace

pid_t startProgram(const std::vector<std::string> &words) {
    std::vector<char *> arguments;
    for (const auto &word : words)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);

    // The program would inherit the signals that this process blocks or ignores.
    posix_spawnattr_t attributes;
    sigset_t none, ignored;
    sigemptyset(&none);
    sigemptyset(&ignored);
    sigaddset(&ignored, SIGPIPE);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &ignored);
    pid_t program = -1;
    const int error = posix_spawnp(&program, arguments[0], nullptr, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    if (error != 0) failCommand("\"" + words[0] + "\" cannot be started: " + strerror(error));
    return program;
}

SignalRelay::SignalRelay() {
    sigemptyset(&m_taken);
    sigaddset(&m_taken, SIGCHLD);
    for (const int number : relayed)
        sigaddset(&m_taken, number);
    sigprocmask(SIG_BLOCK, &m_taken, &m_before);
    // The parent process may ignore SIGCHLD, which would make the wait for the program impossible.
    signal(SIGCHLD, SIG_DFL);
    // A closed output of this process must not end it while the program runs.
    signal(SIGPIPE, SIG_IGN);
}

SignalRelay::~SignalRelay() {
    sigprocmask(SIG_SETMASK, &m_before, nullptr);
}

int SignalRelay::relayTo(pid_t program) const {
    for (int status = 0;;) {
        if (waitpid(program, &status, WNOHANG) == program)
            return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
        siginfo_t info{};
        const int number = sigwaitinfo(&m_taken, &info);
        // The terminal sends its signals to both processes. Signals of other processes are forwarded.
        if (number > 0 && number != SIGCHLD && info.si_code <= 0) kill(program, number);
    }
}
