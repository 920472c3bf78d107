#include "ui/socket.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "support/environment.h"

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
    while (poll(&room, 1, 0) == 1) // until the socket is full, so that the sender waits
        std::this_thread::yield();
    client.close();
}

// The first call of an application blocked forever with such a listener.
TEST_F(Transport, AListenerWithAFullQueueIsNobodys) {
    const ServerSocket server(name, 1);
    int connected = 0;
    while (!Client(name).failed())
        ++connected;
    EXPECT_GE(connected, 1);
    EXPECT_TRUE(Client(name).send("x", 1) < 0);
}

TEST_F(Transport, AListenerOfAnotherUserHearsNothing) {
    if (getuid() != 0) GTEST_SKIP() << "only root can be another user";
    std::string open = "/tmp/zelvane-open.XXXXXX";
    ASSERT_TRUE(mkdtemp(open.data()) && chmod(open.c_str(), 0777) == 0);
    const Variable directory("TMPDIR", open);
    ASSERT_EQ(seteuid(65534), 0);
    const ServerSocket server(name, 4);
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_FALSE(server.failed());
    signal(SIGPIPE, SIG_IGN);
    Client client(name);
    EXPECT_TRUE(client.failed() && client.send("x", 1) < 0);
    EXPECT_EQ(Client(server).receive(bytes, sizeof bytes), 0);
    std::filesystem::remove_all(open);
}

TEST_F(Transport, NoEndGoesToProgramsThatTheProcessStarts) {
    const ServerSocket server(name, 1);
    const Client client(name), accepted(server);
    for (const int descriptor : {server.descriptor(), client.descriptor(), accepted.descriptor()})
        EXPECT_EQ(fcntl(descriptor, F_GETFD), FD_CLOEXEC);
}

} // namespace
