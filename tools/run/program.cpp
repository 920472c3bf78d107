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

    // Signals that we block or ignore would be blocked or ignored in the program too.
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
    // Whoever started us may ignore it, and then nobody could wait for the program.
    signal(SIGCHLD, SIG_DFL);
    // The program's output is read by others too; a reader that goes is not the end of us.
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
        // The terminal sends its signals to the program as well as to us; other processes send them to us alone.
        if (number > 0 && number != SIGCHLD && info.si_code <= 0) kill(program, number);
    }
}
