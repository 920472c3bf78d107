#include "ui/socket.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <thread>
#include <unistd.h>

using namespace KZRIPC;

namespace {

class Transport : public testing::Test {
protected:
    ~Transport() override { unlink(socketPath(name).c_str()); }

    const std::string name = "zelvane-test-" + std::to_string(getpid());
    char bytes[8] = "";
};

TEST_F(Transport, WithoutAListenerTheClientIsOpenAndEveryCallFails) {
    EXPECT_TRUE(ServerSocket(std::string(200, 'n'), 1).failed());
    for (const std::string &nobody : {name, std::string(200, 'n')}) {
        Client client(nobody);
        EXPECT_TRUE(client.failed() && client.isOpen());
        EXPECT_TRUE(client.send("x", 1) < 0 && client.receive(bytes, sizeof bytes) < 0);
        client.close();
        client.close();
        EXPECT_TRUE(!client.isOpen() && client.send("x", 1) < 0);
    }
}

TEST_F(Transport, CopiesShareADescriptorThatOnlyCloseEnds) {
    const ServerSocket server(name, 1);
    int descriptor = Client(name).descriptor();
    EXPECT_GE(fcntl(descriptor, F_GETFD), 0) << "the end of a client closes nothing";

    Client accepted(server);
    Client copy(name);
    copy = Client(accepted);
    EXPECT_EQ(copy.descriptor(), accepted.descriptor());
    accepted.close();
    EXPECT_EQ(copy.receive(bytes, sizeof bytes), 0);
    descriptor = copy.descriptor();
    copy.close();
    EXPECT_LT(fcntl(descriptor, F_GETFD), 0);
    const int reused = open("/dev/null", O_RDONLY);
    copy.close();
    EXPECT_GE(fcntl(reused, F_GETFD), 0) << "closing again must not close what took the number";
    close(reused);
}

TEST_F(Transport, CloseWakesAThreadThatWaitsInACall) {
    const ServerSocket server(name, 1);
    Client client(name);
    const std::jthread receiver([&] { EXPECT_LE(client.receive(bytes, sizeof bytes), 0); });
    const std::jthread sender([&] {
        signal(SIGPIPE, SIG_IGN);
        const std::string block(8240, 'x');
        while (client.send(block.data(), block.size()) > 0) {
        }
    });
    pollfd room{client.descriptor(), POLLOUT, 0};
    while (poll(&room, 1, 0) == 1) // until nothing more goes in, so that the sender waits
        std::this_thread::yield();
    client.close();
}

} // namespace
