// The link against a GUI that keeps to the rules.
#include "ui/link.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
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

TEST_F(Link, OnlyTypesOfTheLibraryAndTheBackEndsAreSent) {
    const std::vector<uint32_t> wanted{2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 15, 16, 17, 18, 19, 20};
    for (const uint32_t type : {0u, 11u, 12u, 13u, 21u, 32u, 34u, 0x80000002u, ~0u})
        link.post(ofType(type));
    for (const uint32_t type : wanted)
        UiLink(link).post(ofType(type)); // a copy is the same link
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

// A handler that cuts the receiver's call short would end the connection.
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
