#include "tools/lab/child_process.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

std::vector<std::string> joined(const std::vector<std::string> &environment) {
    std::vector<std::string> all = environment;
    for (char **variable = environ; *variable; ++variable) {
        const std::string text = *variable;
        const std::string head = text.substr(0, text.find('=') + 1);
        const bool isReplaced =
            std::ranges::any_of(environment, [&](const std::string &own) { return own.starts_with(head); });
        if (!isReplaced) all.push_back(text);
    }
    return all;
}

std::vector<char *> pointers(const std::vector<std::string> &texts) {
    std::vector<char *> list;
    for (const std::string &text : texts)
        list.push_back(const_cast<char *>(text.c_str()));
    list.push_back(nullptr);
    return list;
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &words, const std::vector<std::string> &environment,
                           const std::string &output, int kept) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, output.empty() ? "/dev/null" : output.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0644);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    // dup2 to the same number clears close-on-exec.
    if (kept >= 0) posix_spawn_file_actions_adddup2(&files, kept, kept);
    posix_spawnattr_t attributes;
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setsigmask(&attributes, &none);
    const std::vector<std::string> variables = joined(environment);
    const auto arguments = pointers(words), values = pointers(variables);
    if (posix_spawnp(&m_process, arguments[0], &files, &attributes, arguments.data(), values.data()) != 0)
        m_process = -1;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
}

std::optional<int> ChildProcess::poll() {
    int status = 0;
    if (!m_status && isStarted() && waitpid(m_process, &status, WNOHANG) == m_process) m_status = status;
    return m_status;
}

void ChildProcess::end() {
    using namespace std::chrono_literals;
    if (!isStarted()) return;
    if (!poll()) kill(m_process, SIGTERM);
    const auto limit = std::chrono::steady_clock::now() + 2s;
    while (!poll() && std::chrono::steady_clock::now() < limit)
        std::this_thread::sleep_for(10ms);
    kill(-m_process, SIGKILL);
    if (!m_status) {
        int status = 0;
        if (waitpid(m_process, &status, 0) == m_process) m_status = status;
    }
    m_process = -1;
}
