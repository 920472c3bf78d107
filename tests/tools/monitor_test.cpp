#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/product.h"
#include "monitored.h"
#include "run_command.h"
#include "support/display.h"
#include "support/golden.h"
#include "ui/message_builders.h"
#include "ui/socket.h"

using namespace ui::messages;

namespace {

bool hasSocketFile() {
    return access(KZRIPC::socketPath(productName).c_str(), F_OK) == 0;
}

// An application for the monitor, with any process number.
class Application {
public:
    explicit Application(int32_t number) {
        // The monitor creates the socket file some time after its start.
        for (int attempt = 0; m_client.failed() && attempt < 6000; ++attempt) {
            usleep(10000);
            m_client.close();
            m_client = KZRIPC::Client(productName);
        }
        send(processHello(number));
    }
    Application(const Application &) = delete;
    Application &operator=(const Application &) = delete;
    ~Application() { m_client.close(); }

    void send(const Message &message) { sendBytes(&message, sizeof message); }
    void sendBytes(const void *bytes, size_t count) { EXPECT_EQ(m_client.send(bytes, count), int(count)); }
    // The types of the received commands, after there are at least that many.
    std::vector<uint32_t> commands(size_t count) {
        std::vector<uint32_t> types;
        for (Message message; types.size() < count && m_client.receive(&message, sizeof message) > 0;)
            types.push_back(message.header.type);
        return types;
    }

private:
    KZRIPC::Client m_client{productName};
};

// Replaces every valid time by a word.
std::string timeless(const std::string &text) {
    static const std::regex time(R"((^|\d{4}-\d\d-\d\dT)\d\d:\d\d:\d\d\.\d{3}(Z| ))", std::regex::multiline);
    return std::regex_replace(text, time, "TIME$2");
}

// No process has such a high number, so the command name is empty.
constexpr int32_t nobody = 2000000001;

} // namespace

TEST(Monitor, JsonHasOneObjectARecord) {
    RunningMonitor monitor("--json --once");
    {
        Application application(nobody);
        const uint32_t list[] = {7, 8};
        application.send(windowTitle("a \"b\"\\\n\x1B\xC3\xA4\xE2\x82\xF0\xFF"));
        application.send(systemReportFeatureAlternative("sync", 11, list));
        application.send(systemReportFeature("sync", true));
        application.send(systemReportExtension(70000, false));
        application.send(systemReportEsRequirement(0, "sync"));
        application.send(systemReportEsExtensionRequirement(3, "sync"));
        Message marker = backEndMarker();
        marker.header.frameStamp = 12;
        application.send(marker);
        marker.header.type = 77;
        application.send(marker);
        application.send(backEndLists({0xFFFFFFFFFFFFFFFF, -5, {1, 2}, {list, {}, {}}, {3, 4}, {}}));
        application.send(guiDisconnect());
        application.sendBytes("part of a record", 16);
    }
    EXPECT_EQ(timeless(monitor.rest()), golden("tools/data/monitor.json"));
    EXPECT_EQ(monitor.exitCode(), 0);
    EXPECT_FALSE(hasSocketFile());
}

TEST(Monitor, TextTellsWhoSaysWhatAndPutsTheReportTogether) {
    RunningMonitor monitor("--once");
    monitor.lineWith("listening at " + KZRIPC::socketPath(productName));
    {
        Application application(getpid());
        application.send(logError("bad \x1B[2J\xC2\x9B"
                                  "1m\xC2\xA9"));
        application.send(systemReportGlVersion(9));
        application.send(systemReportFeature("sync", false));
        application.send(systemReportFeatureAlternative("sync", 12, {}));
        application.send(systemReportFeatureAlternative("never told", 12, {}));
        application.send(systemReportEsRequirement(3, "sync"));
        application.send(systemReportEnd());
    }
    const std::regex number("TIME " + std::to_string(getpid()));
    EXPECT_EQ(std::regex_replace(timeless(monitor.rest()), number, "TIME PID"), golden("tools/data/monitor.txt"));
}

TEST(Monitor, ShowsWhatIsAskedForAlone) {
    const std::pair<std::string, std::string> rows[] = {
        {"", "process_hello window_title log_info log_warning log_error ended"},
        {"--level warning", "process_hello window_title log_warning log_error ended"},
        {"--type log --level error --type ended", "log_error ended"},
        {"--type window_title", "window_title"},
        {"--process monitor_tests --type log_info", "log_info"},
    };
    const std::regex type("\"type\":\"([a-z_]*)\"");
    for (const auto &[options, types] : rows) {
        RunningMonitor monitor("--json " + options + " --once --process " + std::to_string(getpid()));
        {
            // Not followed, so its end does not end the monitor.
            Application other(nobody);
            other.send(logError("of another"));
        }
        {
            Application application(getpid());
            for (const auto &message : {windowTitle(""), logInfo(""), logWarning(""), logError("")})
                application.send(message);
        }
        std::string shown;
        const std::string lines = monitor.rest();
        for (std::sregex_iterator match(lines.begin(), lines.end(), type), end; match != end; ++match)
            shown += (shown.empty() ? "" : " ") + match->str(1);
        EXPECT_EQ(shown, types) << options;
    }
}

TEST(Monitor, TakesItsPlaceFromNobody) {
    const std::string path = KZRIPC::socketPath(productName);
    std::ofstream(path) << "a file";
    EXPECT_THAT(run("monitor").output, testing::HasSubstr("exists and is not a socket"));
    EXPECT_TRUE(std::filesystem::remove(path));
    (void)KZRIPC::ServerSocket(productName, 1); // a dead listener's socket
    const RunningMonitor monitor("--json");
    const Application application(nobody);
    const CommandResult second = run("monitor");
    EXPECT_EQ(second.status, 1);
    EXPECT_TRUE(std::regex_search(second.output, std::regex(R"(process \d+ \(zelvane\) already listens .* since \d{4}-)")))
        << second.output;
    EXPECT_TRUE(hasSocketFile());
}

TEST(Monitor, TakesApplicationsOfItsUserAndAsRootOfAll) {
    const std::string nobodys = "setpriv --reuid 65534 --clear-groups ";
    if (system((nobodys + "test -x " ZELVANE_COMMAND " 2>/dev/null").c_str()) != 0) GTEST_SKIP() << "needs root";
    const std::filesystem::path directory = getenv("TMPDIR");
    chmod(directory.c_str(), 0777);
    chmod(directory.parent_path().c_str(), 0755);
    RunningMonitor ofRoot("");
    ofRoot.lineWith("listening");
    if (fork() == 0) {
        const bool isNobody = setuid(65534) == 0;
        const Application application(isNobody ? nobody : 0);
        _exit(0);
    }
    ofRoot.lineWith("2000000001   connected");
    ofRoot.signal(SIGTERM);
    EXPECT_EQ(ofRoot.exitCode(), 0);

    RunningMonitor ofNobody("", RunningMonitor::Nothing, nobodys);
    ofNobody.lineWith("listening");
    KZRIPC::Client client(productName);
    char byte;
    EXPECT_EQ(client.receive(&byte, 1), 0);
    ofNobody.lineWith("sent away: process " + std::to_string(getpid()) + " (monitor_tests) of user 0");
}

// The monitor used the processor continuously and did not handle signals.
TEST(Monitor, OutOfDescriptorsItWaits) {
    RunningMonitor monitor("", RunningMonitor::Nothing, "prlimit --nofile=10");
    monitor.lineWith("listening");
    std::vector<std::unique_ptr<Application>> applications;
    for (int32_t number = 0; number < 10; ++number)
        applications.push_back(std::make_unique<Application>(nobody + number));
    monitor.lineWith("no descriptor is left");
    const long before = monitor.ticksUsed();
    usleep(500000);
    EXPECT_LT(monitor.ticksUsed() - before, 10);
    applications.erase(applications.begin());
    monitor.lineWith("gone");
    monitor.lineWith("connected");
    monitor.signal(SIGTERM);
    EXPECT_EQ(monitor.exitCode(), 0);
}

TEST(Monitor, TypedCommandsReachOneOrAll) {
    RunningMonitor monitor("", RunningMonitor::Terminal);
    Application first(nobody), second(nobody + 1);
    monitor.lineWith("connected");
    monitor.lineWith("connected");
    for (const char *typed : {"w", "W 2000000001", "wire on 2000000002", "wire off", "d 2000000002"}) {
        monitor.type(typed);
        monitor.lineWith("sent to");
    }
    EXPECT_EQ(first.commands(3), (std::vector<uint32_t>{12, 13, 13}));
    EXPECT_EQ(second.commands(4), (std::vector<uint32_t>{12, 12, 13, 11}));
    for (const char *wrong : {"?", "wire", "w torus", "wireon"}) {
        monitor.type(wrong);
        monitor.lineWith("quit");
    }
    monitor.type("q");
    EXPECT_EQ(monitor.exitCode(), 0);
}

TEST(Monitor, EndsWithTheReaderOfItsOutputAndLeavesTheFileOfALaterListener) {
    for (const bool isLater : {false, true}) {
        RunningMonitor monitor("--json");
        const Application application(nobody);
        monitor.lineWith("process_hello");
        std::optional<KZRIPC::ServerSocket> later;
        if (isLater) {
            later.emplace(productName, 1);
            monitor.signal(SIGTERM);
            monitor.rest();
        }
        EXPECT_EQ(monitor.exitCode(), 0);
        EXPECT_EQ(hasSocketFile(), isLater);
    }
}

#ifdef TORUS
TEST(Monitor, RunShowsTheProgramUntilItsEnd) {
    SKIP_WITHOUT_DISPLAY();
    // Leaks of the program itself and of drivers are not checked here.
    const CommandResult result = run("run --monitor -- env ASAN_OPTIONS=detect_leaks=0 " TORUS " --frames 2");
    EXPECT_EQ(result.status, 0);
    for (const char *part : {"listening", "connected", "title: Zelvane: torus", "  gone\n", "frames:       2"})
        EXPECT_NE(result.output.find(part), std::string::npos) << part << " in " << result.output;
    EXPECT_FALSE(hasSocketFile());
}
#endif
