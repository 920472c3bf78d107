#include "ui/socket.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fcntl.h>
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
    EXPECT_EQ(socketPath("Zelvane"), "/tmp/Zelvane");
    Client client(name);
    EXPECT_TRUE(client.failed());
    EXPECT_TRUE(client.isOpen());
    EXPECT_LT(client.send("x", 1), 0);
    EXPECT_LT(client.receive(bytes, sizeof bytes), 0);
    client.close();
    EXPECT_FALSE(client.isOpen());
    client.close();
    EXPECT_LT(client.send("x", 1), 0);
}

TEST_F(Transport, ANameThatDoesNotFitFails) {
    const std::string longName(200, 'n');
    EXPECT_TRUE(Client(longName).failed());
    EXPECT_TRUE(ServerSocket(longName, 1).failed());
}

TEST_F(Transport, BlocksTravelBothWaysAndTheEndIsZero) {
    const ServerSocket server(name, 1);
    ASSERT_FALSE(server.failed());
    Client client(name);
    EXPECT_FALSE(client.failed());
    Client accepted(server);
    EXPECT_FALSE(accepted.failed());
    EXPECT_EQ(client.send("abc", 3), 3);
    EXPECT_EQ(accepted.receive(bytes, sizeof bytes), 3);
    EXPECT_STREQ(bytes, "abc");
    EXPECT_EQ(accepted.send("de", 3), 3);
    EXPECT_EQ(client.receive(bytes, sizeof bytes), 3);
    EXPECT_STREQ(bytes, "de");
    client.close();
    EXPECT_EQ(accepted.receive(bytes, sizeof bytes), 0);
}

TEST_F(Transport, ALaterListenerTakesTheNameOver) {
    const ServerSocket first(name, 1);
    const ServerSocket second(name, 1);
    ASSERT_FALSE(second.failed());
    Client client(name);
    Client accepted(second);
    EXPECT_EQ(client.send("x", 1), 1);
    EXPECT_EQ(accepted.receive(bytes, sizeof bytes), 1);
}

TEST_F(Transport, CopiesShareADescriptorThatOnlyCloseEnds) {
    const ServerSocket server(name, 1);
    int descriptor = -1;
    {
        const Client client(name);
        descriptor = client.descriptor();
    }
    EXPECT_GE(fcntl(descriptor, F_GETFD), 0) << "the end of a client closes nothing";

    Client accepted(server);
    Client copy(accepted);
    Client assigned(name);
    assigned = accepted;
    EXPECT_EQ(copy.descriptor(), accepted.descriptor());
    EXPECT_EQ(assigned.descriptor(), accepted.descriptor());
    accepted.close();
    EXPECT_TRUE(copy.isOpen());
    EXPECT_EQ(copy.receive(bytes, sizeof bytes), 0);
    descriptor = copy.descriptor();
    copy.close();
    assigned.close();
    EXPECT_LT(fcntl(descriptor, F_GETFD), 0);
    const int reused = open("/dev/null", O_RDONLY);
    copy.close();
    EXPECT_GE(fcntl(reused, F_GETFD), 0) << "closing again must not close what took the number";
    close(reused);
}

TEST_F(Transport, CloseWakesAThreadThatWaitsInACall) {
    const ServerSocket server(name, 1);
    Client client(name);
    std::thread receiver([&] { EXPECT_LE(client.receive(bytes, sizeof bytes), 0); });
    std::thread sender([&] {
        sigset_t signals;
        sigfillset(&signals);
        pthread_sigmask(SIG_SETMASK, &signals, nullptr);
        const std::string block(8240, 'x');
        while (client.send(block.data(), block.size()) > 0) {
        }
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    client.close();
    receiver.join();
    sender.join();
}

} // namespace
