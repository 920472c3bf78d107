// The link against a GUI that keeps to the rules.
#include "ui/link.h"

#include <gtest/gtest.h>

#include <csignal>
#include <thread>
#include <unistd.h>
#include <vector>

#include "ui/scripted_gui.h"

using namespace ui::messages;

namespace {

class Link : public testing::Test {
protected:
    Link() { gui.accept(); }

    ScriptedGui gui;
    UiLink link{noteRenderMode};
};

Message ofType(uint32_t type) {
    Message message{};
    message.header.type = type;
    return message;
}

} // namespace

TEST_F(Link, HelloComesFirstAndRecordsFollowInOrder) {
    link.post(windowTitle("first"));
    std::thread([this] { link.post(logError(std::string(600, 'x'))); }).join();
    link.post(backEndMarker());
    const auto hello = gui.read();
    ASSERT_TRUE(hello);
    EXPECT_EQ(hello->header.type, ZV_PROCESS_HELLO);
    EXPECT_EQ(hello->processHello.processNumber, getpid());
    EXPECT_EQ(textOf(*gui.read()), "first");
    EXPECT_EQ(textOf(*gui.read()), std::string(511, 'x'));
    EXPECT_EQ(gui.read()->header.type, ZV_BACK_END_MARKER);
}

TEST_F(Link, OnlyTypesOfTheLibraryAndTheBackEndsAreSent) {
    for (const uint32_t type : {0u, 11u, 12u, 13u, 21u, 32u, 34u, 0x80000002u, ~0u})
        link.post(ofType(type));
    std::vector<uint32_t> wanted{2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 15, 16, 17, 18, 19, 20}, sent;
    for (const uint32_t type : wanted)
        link.post(ofType(type));
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    for (size_t i = 0; i < wanted.size(); ++i)
        sent.push_back(gui.read()->header.type);
    EXPECT_EQ(sent, wanted);
}

TEST_F(Link, NothingFollowsTheStop) {
    link.post(linkStop());
    link.post(backEndMarker());
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    EXPECT_EQ(gui.read()->header.type, ZV_LINK_STOP);
    gui.send(guiRenderModeOn());
    EXPECT_EQ(renderModes(1), "1") << "commands are taken until the GUI leaves";
    gui.send(guiDisconnect());
    EXPECT_FALSE(gui.read());
}

TEST_F(Link, RenderModeFollowsTheGuiUntilItDisconnects) {
    gui.send(guiRenderModeOn());
    gui.send(guiRenderModeOff());
    EXPECT_EQ(renderModes(2), "1 0");
    gui.send(guiDisconnect());
    while (gui.read()) {
    }
    link.post(backEndMarker());
    EXPECT_EQ(renderModes(2), "1 0");
}

TEST_F(Link, LastCommandIsCarriedOutAgainWhenTheGuiGoes) {
    gui.send(guiRenderModeOff());
    gui.send(guiRenderModeOn());
    EXPECT_EQ(renderModes(2), "0 1");
    gui.close();
    EXPECT_EQ(renderModes(3), "0 1 1");
}

TEST_F(Link, CopiesAreTheSameLink) {
    const UiLink copy = link;
    copy.post(windowTitle("of the copy"));
    EXPECT_EQ(textOf(gui.readUntil(ZV_WINDOW_TITLE)), "of the copy");
}

// A handler that cuts the receiver's call short would end the connection.
TEST_F(Link, SignalsOfTheApplicationStayWithItsThreads) {
    static volatile sig_atomic_t handled = 0;
    EXPECT_EQ(gui.read()->header.type, ZV_PROCESS_HELLO);
    gui.send(guiRenderModeOn());
    EXPECT_EQ(renderModes(1), "1") << "both threads run";
    struct sigaction action {};
    action.sa_handler = [](int) { handled = 1; };
    sigaction(SIGUSR1, &action, nullptr);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    kill(getpid(), SIGUSR1);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(handled, 0);
    link.post(windowTitle("alive"));
    EXPECT_EQ(textOf(*gui.read()), "alive");
}
