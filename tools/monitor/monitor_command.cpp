// zelvane monitor: watch applications, and switch their render mode.
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tools/command/failure.h"
#include "tools/monitor/monitor.h"
#include "tools/verbs.h"

namespace {

struct Options {
    bool json = false;
    bool once = false;
};

// A terminal or a pipe; what else stands there (a file, a closed input) belongs to somebody else.
bool takesCommands(int input) {
    struct stat status {};
    return isatty(input) || (fstat(input, &status) == 0 && S_ISFIFO(status.st_mode));
}

// An output that nobody reads any more and a key in the background are noticed where they happen.
int catchSignals() {
    signal(SIGPIPE, SIG_IGN);
    signal(SIGTTIN, SIG_IGN);
    sigset_t ending;
    sigemptyset(&ending);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&ending, number);
    sigprocmask(SIG_BLOCK, &ending, nullptr);
    return signalfd(-1, &ending, SFD_CLOEXEC);
}

int watch(const Options &options) {
    // Its number would be the next one to be given away, to a socket.
    if (fcntl(STDOUT_FILENO, F_GETFD) < 0) {
        fprintf(stderr, "zelvane: standard output is closed\n");
        return 1;
    }
    Monitor monitor(options.json ? makeJsonOutput() : makeTextOutput(), catchSignals(), takesCommands(STDIN_FILENO),
                    options.once);
    if (!monitor.isListening()) {
        fprintf(stderr, "zelvane: cannot listen at /tmp/Zelvane: another user's socket may be there\n");
        return 1;
    }
    monitor.run();
    return 0;
}

} // namespace

void addMonitorCommand(CLI::App &app) {
    auto *monitor = app.add_subcommand("monitor", "Show what applications that start from now on report");
    auto options = std::make_shared<Options>();
    monitor->add_flag("--json", options->json, "One JSON object a record, for other tools");
    monitor->add_flag("--once", options->once, "End with the first application");
    monitor->footer(
        "Lines that are typed, or that come through a pipe, are commands: w, W, wire on|off, d and q, each\n"
        "but q with a process number for one application alone.");
    monitor->callback([options] {
        if (const int failure = watch(*options)) throw Failure{failure};
    });
}
