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

TEST(LinkFaults, WithoutAGuiRecordsVanishAndALateOneGetsNewConnectionsAlone) {
    const auto path = KZRIPC::socketPath(productName);
    for (const bool isFileLeft : {false, true}) {
        unlink(path.c_str());
        if (isFileLeft) {
            const KZRIPC::ServerSocket dead(productName, 1);
            ASSERT_FALSE(dead.failed());
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

TEST(LinkFaults, AGuiThatDoesNotReadLosesNothingAndCanStillDisconnect) {
    ScriptedGui gui;
    const UiLink link(noteRenderMode);
    gui.accept();
    constexpr uint32_t producers = 4, each = 1000;
    std::vector<std::thread> threads;
    for (uint32_t producer = 0; producer < producers; ++producer) {
        threads.emplace_back([&link, producer] {
            for (uint32_t i = 0; i < each; ++i)
                link.post(backEndText(producer, i, ""));
        });
    }
    for (auto &thread : threads)
        thread.join();
    uint32_t next[producers] = {};
    for (uint32_t i = 0; i < producers * each / 2; ++i) {
        const auto [producer, number] = gui.readUntil(ZV_BACK_END_TEXT).backEndText.values;
        ASSERT_EQ(number, next[producer]++) << "every thread keeps its order";
    }
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
    std::vector<std::thread> threads;
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
    for (auto &thread : threads)
        thread.join();
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

} // namespace
