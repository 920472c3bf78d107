#include "tools/monitor/web/browser.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <unistd.h>

namespace {

constexpr char opener[] = "xdg-open";

bool hasDisplay() {
    for (const char *name : {getenv("DISPLAY"), getenv("WAYLAND_DISPLAY")}) {
        if (name && *name) return true;
    }
    return false;
}

// 0, or the error number. The program does not inherit the command's input and output, which may be a terminal or a
// pipe of JSON.
int start(const char *program, const std::string &argument) {
    sigset_t none, ignored;
    sigemptyset(&none);
    sigemptyset(&ignored);
    for (const int number : {SIGPIPE, SIGTTIN})
        sigaddset(&ignored, number);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &ignored);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, STDERR_FILENO, STDOUT_FILENO);

    char *const words[] = {const_cast<char *>(program), const_cast<char *>(argument.c_str()), nullptr};
    pid_t started = -1;
    const int error = posix_spawnp(&started, program, &files, &attributes, words, environ);
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    return error;
}

} // namespace

Browser::Browser(const std::string &address) {
    if (!hasDisplay()) {
        m_failure = "no display for a browser";
        return;
    }
    const std::string path = m_directory.path() + "/monitor.html";
    std::ofstream(path) << "<!doctype html><meta http-equiv=\"refresh\" content=\"0; url=" << address << "\">\n"
                        << "<a href=\"" << address << "\">Zelvane monitor</a>\n";
    if (const int error = start(opener, path)) m_failure = std::string(opener) + ": " + strerror(error);
}
