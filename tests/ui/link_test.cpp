// The link with a well-behaved GUI, and with missing ones and ones that do not read, send invalid data or die. The
// application must continue in all cases.
#include "ui/link.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "foundation/log.h"
#include "foundation/product.h"
#include "ui/scripted_gui.h"

using namespace ui::messages;

namespace {

class Link : public testing::Test {
protected:
    Link() { gui.accept(); }

    ScriptedGui gui;
    UiLink link{noteRenderMode};
};

// The resident memory of this process.
size_t residentBytes() {
    size_t all = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

void post(const UiLink &link, uint32_t type) {
    Message message{};
    message.header.type = type;
    link.post(message);
}

} // namespace

TEST_F(Link, OnlyTypesOfTheLibraryAndTheBackEndsAreSent) {
    const std::vector<uint32_t> wanted{2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 15, 16, 17, 18, 19, 20};
    for (const uint32_t type : {0u, 11u, 12u, 13u, 21u, 32u, 34u, 0x80000002u, ~0u})
        post(link, type);
    for (const uint32_t type : wanted)
        post(UiLink(link), type); // a copy uses the same link
    const Message hello = *gui.read();
    EXPECT_EQ(hello.header.type, ZV_PROCESS_HELLO);
    EXPECT_EQ(hello.processHello.processNumber, getpid());
    for (const uint32_t type : wanted)
        ASSERT_EQ(gui.read()->header.type, type);
}

TEST_F(Link, NothingFollowsTheStop) {
    link.post(linkStop());
    link.post(backEndMarker());
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    EXPECT_EQ(gui.read()->header.type, ZV_LINK_STOP);
    gui.send(guiRenderModeOff());
    gui.send(guiRenderModeOn());
    EXPECT_EQ(renderModes(2), "0 1") << "commands are taken until the GUI leaves";
    gui.send(guiDisconnect());
    EXPECT_FALSE(gui.read());
    EXPECT_EQ(renderModes(2), "0 1");
}

// A handler that interrupts the receiver's call would end the connection.
TEST_F(Link, SignalsOfTheApplicationStayWithItsThreads) {
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    gui.send(guiRenderModeOn());
    EXPECT_EQ(renderModes(1), "1") << "both threads run";
    int threads = 0;
    for (const auto &thread : std::filesystem::directory_iterator("/proc/self/task")) {
        if (thread.path().filename() == std::to_string(gettid())) continue;
        std::ifstream status(thread.path() / "status");
        const std::string text{std::istreambuf_iterator<char>(status), {}};
        const auto blocked = std::stoull(text.substr(text.find("SigBlk:") + 7), nullptr, 16);
        EXPECT_TRUE(blocked >> (SIGUSR1 - 1) & 1) << thread;
        ++threads;
    }
    EXPECT_GE(threads, 2);
}

TEST(LinkFaults, WithoutAGuiRecordsVanishAndALateOneGetsNewConnectionsAlone) {
    for (const bool isFileLeft : {false, true}) {
        if (isFileLeft) {
            EXPECT_FALSE(KZRIPC::ServerSocket(productName, 1).failed());
        }
        const UiLink early(noteRenderMode);
        for (int i = 0; i < 1000; ++i)
            early.post(backEndMarker());
        ScriptedGui gui;
        early.post(backEndMarker());
        const UiLink late(noteRenderMode);
        late.post(windowTitle("late"));
        gui.accept();
        EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
        EXPECT_EQ(textOf(*gui.read()), "late");
        EXPECT_FALSE(gui.isConnectedWithin(0));
    }
    EXPECT_EQ(renderModes(0), "") << "nothing was received, so nothing is carried out";
}

TEST(LinkFaults, RecordsThatNobodyWouldReadAreNotKept) {
    const UiLink link(noteRenderMode);
    const size_t before = residentBytes();
    for (int i = 0; i < 5000; ++i)
        link.post(backEndMarker());
    EXPECT_LT(residentBytes(), before + 5000 * sizeof(Message) / 2);
}

TEST_F(Link, AGuiThatDoesNotReadLosesNothingAndCanStillDisconnect) {
    constexpr uint32_t producers = 4, each = 1000;
    std::vector<std::jthread> threads;
    for (uint32_t producer = 0; producer < producers; ++producer) {
        threads.emplace_back([this, producer] {
            for (uint32_t i = 0; i < each; ++i)
                link.post(backEndText(producer, i, ""));
        });
    }
    threads.clear();
    uint32_t next[producers] = {};
    for (uint32_t i = 0; i < producers * each / 2; ++i) {
        const auto [producer, number] = gui.readUntil(ZV_BACK_END_TEXT).backEndText.values;
        ASSERT_EQ(number, next[producer]++) << "every thread keeps its order";
    }
    gui.send(guiDisconnect());
    // The sender is blocked in a call now, which must not keep the connection open.
    while (gui.read()) {
    }
}

TEST_F(Link, ShortAndUnknownRecordsDoNoHarm) {
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    for (const uint32_t type : {0u, 1u, 10u, 14u, 21u, 0xFFFFFFFFu}) {
        Message rubbish;
        memset(&rubbish, 0xA5, sizeof rubbish);
        rubbish.header.type = type;
        gui.send(rubbish);
    }
    gui.send(guiRenderModeOff());
    EXPECT_EQ(renderModes(1), "0");
    // A short block counts as a record.
    const Message on = guiRenderModeOn();
    gui.sendBytes(&on, 12);
    EXPECT_EQ(renderModes(2), "0 1");
    // Shorter than the type field: the previous record's type is used again.
    gui.sendBytes(&on, 5);
    EXPECT_EQ(renderModes(3), "0 1 1");
    gui.close();
    EXPECT_EQ(renderModes(4), "0 1 1 1");
}

TEST(LinkFaults, AGuiThatIsKilledWhileEightThreadsLogHarmsNobody) {
    const KZRIPC::ServerSocket server(productName, 16);
    ASSERT_FALSE(server.failed());
    const pid_t child = fork();
    if (child == 0) {
        KZRIPC::Client application(server);
        for (Message message; application.receive(&message, sizeof message) > 0;) {
        }
        pause();
    }
    static const UiLink link(noteRenderMode);
    setLogListener([](int32_t, const char *text) { link.post(logError(text)); });
    std::atomic<int> logged = 0;
    std::vector<std::jthread> threads;
    testing::internal::CaptureStderr();
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([&logged] {
            for (int i = 0; i < 200; ++i, ++logged)
                logMessage(LogError, "line %d", i);
        });
    }
    while (logged < 400)
        std::this_thread::yield();
    kill(child, SIGKILL);
    threads.clear();
    logMessage(LogError, "after");
    setLogListener(nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("(Error) after\n"), std::string::npos);
    EXPECT_EQ(waitpid(child, nullptr, 0), child);
    unlink(server.path().c_str());
}

TEST(LinkFaults, AThousandApplicationsConnectOneAfterTheOther) {
    ScriptedGui gui;
    for (int i = 0; i < 1000; ++i) {
        const UiLink link(noteRenderMode);
        link.post(windowTitle(std::to_string(i)));
        gui.accept();
        ASSERT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
        ASSERT_EQ(textOf(*gui.read()), std::to_string(i));
    }
}
