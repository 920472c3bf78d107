// The link with GUIs that are not there, do not read, send rubbish or die. Whatever they do, the application goes on.
#include "ui/link.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "foundation/log.h"
#include "foundation/product.h"
#include "ui/scripted_gui.h"

using namespace ui::messages;

namespace {

TEST(LinkFaults, WithoutAGuiRecordsVanishAndALateOneGetsNoConnection) {
    unlink(KZRIPC::socketPath(productName).c_str());
    const UiLink link(noteRenderMode);
    for (int i = 0; i < 1000; ++i)
        link.post(backEndMarker());
    ScriptedGui gui;
    link.post(backEndMarker());
    EXPECT_FALSE(gui.isConnectedWithin(100));
    EXPECT_EQ(renderModes(0), "") << "nothing was received, so nothing is carried out";
}

TEST(LinkFaults, AStaleSocketFileIsLikeNoGuiAndTheNextGuiReplacesIt) {
    const auto path = KZRIPC::socketPath(productName);
    { const KZRIPC::ServerSocket dead(productName, 1); }
    ASSERT_EQ(access(path.c_str(), F_OK), 0);
    const UiLink early(noteRenderMode);
    early.post(backEndMarker());
    ScriptedGui gui;
    const UiLink late(noteRenderMode);
    gui.accept();
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
}

TEST(LinkFaults, AGuiThatDoesNotReadCostsNoTimeAndLosesNothing) {
    ScriptedGui gui;
    const UiLink link(noteRenderMode);
    gui.accept();
    constexpr uint32_t count = 2000;
    for (uint32_t i = 0; i < count; ++i)
        link.post(backEndText(i, 0, ""));
    for (uint32_t i = 0; i < count; ++i)
        ASSERT_EQ(gui.readUntil(ZV_BACK_END_TEXT).backEndText.values[0], i);
}

TEST(LinkFaults, AGuiThatStopsReadingCanStillDisconnect) {
    ScriptedGui gui;
    const UiLink link(noteRenderMode);
    gui.accept();
    for (uint32_t i = 0; i < 1000; ++i)
        link.post(backEndMarker());
    gui.send(guiDisconnect());
    // The sender waits in a call at this time and must not keep the connection open.
    while (gui.read()) {
    }
}

TEST(LinkFaults, ShortAndUnknownRecordsDoNoHarm) {
    ScriptedGui gui;
    const UiLink link(noteRenderMode);
    gui.accept();
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    for (const uint32_t type : {0u, 1u, 10u, 14u, 21u, 0xFFFFFFFFu}) {
        Message rubbish;
        memset(&rubbish, 0xA5, sizeof rubbish);
        rubbish.header.type = type;
        gui.send(rubbish);
    }
    gui.send(guiRenderModeOff());
    EXPECT_EQ(renderModes(1), "0");
    // What is short is taken as a record.
    const Message on = guiRenderModeOn();
    gui.sendBytes(&on, 12);
    EXPECT_EQ(renderModes(2), "0 1");
    // Less than the type: the type of the record before counts again.
    gui.sendBytes(&on, 5);
    EXPECT_EQ(renderModes(3), "0 1 1");
    gui.close();
    EXPECT_EQ(renderModes(4), "0 1 1 1");
}

// Waits in a process of its own for the parent to connect, and reads what it sends until it is killed.
[[noreturn]] void runGui(int ready) {
    const KZRIPC::ServerSocket server(productName, 16);
    char byte = server.failed() ? 'n' : 'y';
    if (write(ready, &byte, 1) != 1) _exit(1);
    KZRIPC::Client application(server);
    Message message;
    while (application.receive(&message, sizeof message) > 0) {
    }
    _exit(0);
}

TEST(LinkFaults, AGuiThatIsKilledWhileEightThreadsLogHarmsNobody) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t child = fork();
    if (child == 0) runGui(ready[1]);
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    ASSERT_EQ(byte, 'y');

    static const UiLink link(noteRenderMode);
    setLogListener([](int32_t, const char *text) { link.post(logError(text)); });
    std::atomic<int> logged = 0;
    std::vector<std::thread> threads;
    testing::internal::CaptureStderr();
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([&logged, thread] {
            for (int i = 0; i < 200; ++i) {
                logMessage(LogError, "line %d of thread %d", i, thread);
                ++logged;
            }
        });
    }
    while (logged < 400)
        std::this_thread::yield();
    kill(child, SIGKILL);
    for (auto &thread : threads)
        thread.join();
    logMessage(LogError, "after");
    setLogListener(nullptr);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("(Error) after\n"), std::string::npos);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    unlink(KZRIPC::socketPath(productName).c_str());
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

} // namespace
