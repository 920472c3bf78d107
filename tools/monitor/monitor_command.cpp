// zelvane monitor: shows the records of applications and switches their render mode.
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <optional>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tools/command/failure.h"
#include "tools/command/nearest.h"
#include "tools/command/verbs.h"
#include "tools/monitor/monitor.h"
#include "tools/monitor/record_fields.h"
#include "tools/monitor/web/browser.h"
#include "tools/monitor/web/monitor_page.h"

namespace {

// In the order of the types of log lines.
const std::vector<std::string> levels = {"info", "warning", "error"};

struct Options {
    bool json = false;
    bool once = false;
    std::string level = levels[0];
    RecordFilter filter;
    std::optional<std::string> web; // a port, or empty for the default one
    bool open = false;
};

constexpr int usualPort = 6310;

// Commands are read from a terminal or a pipe only, not from a file or a closed input.
bool takesCommands(int input) {
    struct stat status {};
    return isatty(input) || (fstat(input, &status) == 0 && S_ISFIFO(status.st_mode));
}

// SIGPIPE and SIGTTIN are ignored, since their causes are detected at the calls.
int catchSignals() {
    signal(SIGPIPE, SIG_IGN);
    signal(SIGTTIN, SIG_IGN);
    sigset_t ending;
    sigemptyset(&ending);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&ending, number);
    sigprocmask(SIG_BLOCK, &ending, nullptr);
    const int descriptor = signalfd(-1, &ending, SFD_CLOEXEC);
    if (descriptor < 0) failCommand(std::string("no descriptor for signals: ") + strerror(errno));
    return descriptor;
}

std::optional<int> portOf(const std::string &text) {
    if (text.empty()) return usualPort;
    int port = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    const bool isPort = error == std::errc() && end == text.data() + text.size() && port >= 0 && port <= 65535;
    return isPort ? std::optional(port) : std::nullopt;
}

std::string whatIsWrongWithPort(const std::string &port) {
    return portOf(port) ? std::string()
                        : '"' + port + "\" is not a port: use a number up to 65535, or 0 for any free one";
}

void watch(const Options &options) {
    if (options.open && !options.web) throw UsageError{"--open requires --web"};
    MonitorOptions monitorOptions{takesCommands(STDIN_FILENO), options.once, options.filter};
    const auto level = std::ranges::find(levels, options.level) - levels.begin();
    monitorOptions.filter.leastLevel = ZV_LOG_INFO + static_cast<uint32_t>(level);
    auto output = options.json ? makeJsonOutput() : makeTextOutput();
    // Called before threads are created, so that this thread handles the signals.
    const int ending = catchSignals();
    std::optional<MonitorPage> page;
    std::optional<Browser> browser;
    if (options.web) {
        page.emplace(*portOf(*options.web));
        monitorOptions.page = &page->output();
        monitorOptions.pageCommands = page->commands();
        output->notice("page at " + page->address());
    }
    if (options.open) browser.emplace(page->address());
    if (browser && !browser->failure().empty()) output->notice("no browser was started: " + browser->failure());
    Monitor(std::move(output), ending, monitorOptions).run();
}

std::string whatIsWrongWith(const std::string &recordName) {
    if (isRecordName(recordName)) return {};
    return "there is no record type \"" + recordName + '"' + suggestion(recordName, recordNames());
}

} // namespace

void addMonitorCommand(const Verb &top) {
    const Verb monitor =
        top.verb("monitor", "Show the records of applications that start from now on",
                 "A TYPE is a name of a record in --json, such as log_error, or a prefix of several: log, back_end,\n"
                 "system_report. Typed lines, and lines from a pipe, are commands: w, W, wire on|off, d\n"
                 "and q, all but q with a process number for one application only.\n"
                 "Exit status: 0 success, 1 another monitor listens, the socket cannot be created or the page's port "
                 "is in use.");
    auto options = std::make_shared<Options>();
    monitor.flag("--json", options->json, "print one JSON object per record");
    monitor.flag("--once", options->once, "end when the first application ends");
    monitor.option("--level", options->level, "LEVEL", "the lowest level of log lines to show: info, warning, error")
        .oneOf(levels);
    monitor.option("--process", options->filter.processes, "NUMBER|NAME", "show only this process; may be repeated");
    monitor.option("--type", options->filter.types, "TYPE", "show only these records; may be repeated")
        .checkedBy(whatIsWrongWith);
    monitor
        .optionalValue("--web", options->web, "[PORT]",
                       "also show everything on a page in a browser; port " + std::to_string(usualPort) +
                           " unless given")
        .checkedBy(whatIsWrongWithPort);
    monitor.flag("--open", options->open, "with --web: start the browser");
    monitor.action([options] { watch(*options); });
}
