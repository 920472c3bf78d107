// zelvane run: any program on this library, without installing it and without changing the user's preferences.
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <thread>
#include <unistd.h>

#include "tools/command/failure.h"
#include "tools/command/verbs.h"
#include "tools/monitor/monitor.h"
#include "tools/run/checks.h"
#include "tools/run/held_refusals.h"
#include "tools/run/libraries.h"
#include "tools/run/private_preferences.h"
#include "tools/run/program.h"

namespace {

struct Options {
    PrivatePreferences::Wishes wishes;
    bool strict = false;
    bool loose = false;
    std::string backEnds;
    std::string journal; // a file
    bool openGl = false;
    bool monitor = false;
};

// Shows the records of the program while it runs, in a thread, and the rest after its end.
class WatchedRun {
public:
    WatchedRun() : m_monitor(makeTextOutput(), m_end.reading(), {}), m_thread([this] { m_monitor.run(); }) {}
    ~WatchedRun() {
        m_end.closeWriting();
        m_thread.join();
    }

private:
    struct Pipe {
        int ends[2] = {-1, -1};
        Pipe() {
            if (pipe2(ends, O_CLOEXEC) != 0) failCommand("no pipe can be created");
        }
        ~Pipe() { close(ends[0]); }
        int reading() const { return ends[0]; }
        void closeWriting() { close(ends[1]); }
    };

    Pipe m_end; // readable once its other end is closed
    Monitor m_monitor;
    std::thread m_thread;
};

int runProgram(const Options &options, const std::vector<std::string> &words) {
    // Constructed first, so that no signal ends this process while it has temporary files, and all threads block the
    // signals.
    const SignalRelay signals;
    const PrivatePreferences preferences(options.wishes);
    const RunLibraries libraries(options.backEnds);
    const char *before = getenv("LD_LIBRARY_PATH");
    const std::string path = libraries.searchPath() + (before && *before ? std::string(":") + before : "");
    setenv("LD_LIBRARY_PATH", path.c_str(), 1);
    setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1);
    if (options.openGl) setenv("ZELVANE_DESKTOP_OPENGL", "1", 1);
    // Absolute, since the program may change its working directory.
    if (!options.journal.empty()) setenv("ZELVANE_JOURNAL", std::filesystem::absolute(options.journal).c_str(), 1);
    checkXServer();
    checkProgram(words, libraries.directory());

    const HeldRefusals refusals(preferences.directory());
    std::optional<WatchedRun> watched;
    if (options.monitor) watched.emplace();
    const int status = signals.relayTo(startProgram(words));
    refusals.print();
    return status;
}

} // namespace

void addRunCommand(const Verb &top, const std::vector<std::string> &program) {
    const Verb run =
        top.verb("run", "Run a program on this library: zelvane run [OPTIONS] [--] PROGRAM [ARGUMENTS]",
                 "The user's preferences are not changed, and apply unless an option overrides them. If they have no\n"
                 "device, the program gets \"Desktop\": the configs and versions of desktop drivers.\n"
                 "Exit status: the program's own, 128 + N if signal N ended it, 125 if it was not started,\n"
                 "2 for an invalid command line.");
    auto options = std::make_shared<Options>();
    const Word profile = run.option("--profile", options->wishes.device.profile, "NAME",
                                    "the program's device; \"zelvane profiles\" lists them");
    run.flag("--bare", options->wishes.device.isBare, "no device: the built-in config and every ES version")
        .excludes(profile);
    const Word strict = run.flag("--strict", options->strict, "reject contexts that the host does not fully support");
    run.flag("--loose", options->loose, "accept contexts that the host does not fully support").excludes(strict);
    run.flag("--opengl", options->openGl, "also offer desktop OpenGL, for programs that require it");
    run.option("--backends", options->backEnds, "DIRECTORY", "a directory whose OpenGL ES libraries replace Zelvane's");
    run.option("--journal", options->journal, "FILE",
               "append a journal of EGL and GL calls to a file, one JSON object per line");
    run.flag("--monitor", options->monitor, "also show the output of \"zelvane monitor\"");
    run.action([options, &program] {
        if (program.empty()) throw UsageError{"PROGRAM is missing"};
        if (options->strict || options->loose) options->wishes.strict = options->strict;
        int status = runFailure;
        try {
            status = runProgram(*options, program);
        } catch (const Failure &) {
            // The error has been printed.
        }
        if (status != 0) throw Failure{status};
    });
}
