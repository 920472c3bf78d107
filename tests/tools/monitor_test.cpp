#include <gtest/gtest.h>

#include <csignal>
#include <poll.h>
#include <unistd.h>

#include "foundation/product.h"
#include "monitored.h"
#include "run_command.h"
#include "ui/message_builders.h"
#include "ui/socket.h"

using namespace ui::messages;

namespace {

const std::string path = KZRIPC::socketPath(productName);

// An application as the monitor sees it, with any process number.
class Application {
public:
    explicit Application(int32_t number) {
        // The monitor makes the socket file some time after its start.
        for (int attempt = 0; m_client.failed() && attempt < 1000; ++attempt) {
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
    // Type of the next command; 0 when none came in time.
    uint32_t command(int timeoutMs = 60000) {
        pollfd waiting{m_client.descriptor(), POLLIN, 0};
        Message message;
        if (poll(&waiting, 1, timeoutMs) != 1) return 0;
        EXPECT_EQ(m_client.receive(&message, sizeof message), int(sizeof message));
        return message.header.type;
    }

private:
    KZRIPC::Client m_client{productName};
};

// No process has so high a number, so that the command name is empty.
constexpr int32_t nobody = 2000000001;
const std::string head = R"({"pid":2000000001,"command":"","type":)";

} // namespace

TEST(Monitor, JsonHasOneObjectARecord) {
    RunningMonitor monitor({"--json", "--once"});
    {
        Application application(nobody);
        const uint32_t list[] = {7, 8};
        application.send(windowTitle("a \"b\"\\\n\x1B\xC3\xA4\xE2\x82\xF0\xFF"));
        application.send(systemReportFeatureAlternative("sync", 11, list));
        application.send(systemReportFeature("sync", true));
        Message marker = backEndMarker();
        marker.header.frameStamp = 12;
        application.send(marker);
        marker.header.type = 77;
        application.send(marker);
        application.send(backEndLists({0xFFFFFFFFFFFFFFFF, -5, {1, 2}, {list, {}, {}}, {3, 4}, {}}));
        application.send(guiDisconnect());
        application.sendBytes("part of a record", 16);
    }
    EXPECT_EQ(monitor.rest(),
              head +
                  R"("process_hello","process":2000000001})"
                  "\n" +
                  head +
                  R"("window_title","text":"a \"b\"\\\u000a\u001bä\ufffd\ufffd\ufffd\ufffd"})"
                  "\n" +
                  head +
                  R"("system_report_feature_alternative","feature":"sync","version":11,"extensions":[7,8]})"
                  "\n" +
                  head +
                  R"("system_report_feature","feature":"sync","available":true})"
                  "\n" +
                  head +
                  R"("back_end_marker","frame":12})"
                  "\n" +
                  head +
                  R"("unknown","frame":12,"number":77})"
                  "\n" +
                  head +
                  R"("back_end_lists","key":18446744073709551615,"number":-5,"value1":1,"value2":2,)"
                  R"("list1":[7,8],"list2":[],"list3":[],"value3":3,"value4":4,"list4":[]})"
                  "\n" +
                  head +
                  R"("unknown","number":11})"
                  "\n" +
                  head +
                  R"("ended"})"
                  "\n");
    EXPECT_EQ(monitor.exitCode(), 0);
    EXPECT_NE(access(path.c_str(), F_OK), 0);
}

TEST(Monitor, TextTellsWhoSaysWhatAndPutsTheReportTogether) {
    RunningMonitor monitor({"--once"});
    {
        Application application(getpid());
        application.send(logError("bad \x1B[2J"));
        application.send(systemReportGlVersion(9));
        application.send(systemReportFeature("sync", false));
        application.send(systemReportFeatureAlternative("sync", 12, {}));
        application.send(systemReportFeatureAlternative("never told", 12, {}));
        application.send(systemReportEsRequirement(3, "sync"));
        application.send(systemReportEnd());
    }
    const std::string who = std::to_string(getpid()) + " monitor_tests  ";
    EXPECT_EQ(monitor.rest(), "listening at /tmp/Zelvane\n" + who + "connected\n" + who + "(Error) bad ?[2J\n" + who +
                                  "System Report:\n"
                                  "OpenGL Version: 3.0\n\n"
                                  "OpenGL ES base support: yes\n"
                                  "OpenGL ES 2.0 core support: yes\n"
                                  "OpenGL ES 3.0 core support: no\n"
                                  "OpenGL ES 3.1 core support: no\n"
                                  "OpenGL ES 3.2 core support: no\n\n\n"
                                  "Missing features required for OpenGL ES 3.0 core support:\n"
                                  "\tSync\n\t\tRequires: OpenGL 3.3\n\n" +
                                  who + "gone\n");
}

TEST(Monitor, ServesManyAndOneAfterAnother) {
    RunningMonitor monitor({"--json"});
    {
        Application first(nobody), second(nobody + 1);
        second.send(windowTitle("two"));
        monitor.lineWith(R"("text":"two")");
        first.send(windowTitle("one"));
        EXPECT_EQ(monitor.lineWith("window_title"), head + R"("window_title","text":"one"})");
    }
    monitor.lineWith("ended");
    monitor.lineWith("ended");
    const Application third(nobody + 2);
    monitor.lineWith(R"("process":2000000003)");
    monitor.signal(SIGTERM);
    EXPECT_EQ(monitor.exitCode(), 0);
    EXPECT_NE(access(path.c_str(), F_OK), 0);
}

TEST(Monitor, TypedCommandsReachOneOrAll) {
    RunningMonitor monitor({}, RunningMonitor::Terminal);
    Application first(nobody), second(nobody + 1);
    monitor.lineWith("connected");
    monitor.lineWith("connected");
    const struct {
        const char *typed;
        uint32_t first, second; // 0: no command
    } rows[] = {
        {"w", 12, 12},        {"W 2000000001", 13, 0}, {"wire on 2000000002", 0, 12},
        {"wire off", 13, 13}, {"d 2000000002", 0, 11},
    };
    for (const auto &row : rows) {
        monitor.type(row.typed);
        monitor.lineWith("sent to");
        EXPECT_EQ(first.command(row.first ? 60000 : 50), row.first) << row.typed;
        EXPECT_EQ(second.command(row.second ? 60000 : 50), row.second) << row.typed;
    }
    for (const char *wrong : {"?", "wire", "w torus", "wireon"}) {
        monitor.type(wrong);
        monitor.lineWith("quit");
    }
    monitor.type("q");
    EXPECT_EQ(monitor.exitCode(), 0);
}

TEST(Monitor, EndsWithTheReaderOfItsOutput) {
    RunningMonitor monitor({"--json"});
    const Application application(nobody);
    monitor.lineWith("process_hello");
    monitor.stopReading();
    EXPECT_EQ(monitor.exitCode(), 0);
    EXPECT_NE(access(path.c_str(), F_OK), 0);
}

TEST(Monitor, RunShowsTheProgramUntilItsEnd) {
    // The program's own losses are not what is looked at here; drivers have theirs.
    const CommandResult result = run("run --monitor -- env ASAN_OPTIONS=detect_leaks=0 " TORUS " --frames 2");
    EXPECT_EQ(result.status, 0);
    for (const char *part : {"listening", "connected", "title: Zelvane: torus", "  gone\n", "frames:       2"})
        EXPECT_NE(result.output.find(part), std::string::npos) << part << " in " << result.output;
    EXPECT_NE(access(path.c_str(), F_OK), 0);
}

TEST(Monitor, LeavesTheFileOfALaterListener) {
    RunningMonitor monitor({"--json"});
    const Application application(nobody);
    monitor.lineWith("process_hello");
    const KZRIPC::ServerSocket later(productName, 1);
    monitor.signal(SIGINT);
    EXPECT_EQ(monitor.exitCode(), 0);
    EXPECT_EQ(access(path.c_str(), F_OK), 0);
    unlink(path.c_str());
}
