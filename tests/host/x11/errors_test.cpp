#include "x11_fixture.h"

#include <csignal>
#include <cstdlib>

#include "host/platform/x11/connection.h"
#include "host/platform/x11/x_calls.h"

namespace {

using ErrorsOnX11 = X11Host;

int applicationErrors = 0;

TEST_F(ErrorsOnX11, TrapTakesItsOwnErrorsAndNoEarlierOnes) {
    XSetErrorHandler([](Display *, XErrorEvent *) { return ++applicationErrors; });
    XMapWindow(application, 0x12345); // still on its way when the trap is set
    x11::ErrorTrap trap(application, X_UnmapWindow);
    EXPECT_EQ(applicationErrors, 1);
    XMapWindow(application, 0x12345); // another kind of request
    EXPECT_FALSE(trap.sawError());
    XUnmapWindow(application, 0x12345);
    EXPECT_TRUE(trap.sawError());
    EXPECT_EQ(applicationErrors, 2);
}

// The server dies under a context that draws. Where the application's handler lets the process live, it goes on, and
// every operation fails.
TEST(ServerThatDies, MakesEveryOperationFail) {
    XSetIOErrorHandler([](Display *) { return 0; });
    const std::string before = getenv("DISPLAY");
    FILE *server = popen("echo $$; exec Xvfb -displayfd 1 -screen 0 640x480x24 -nolisten tcp 2>/dev/null", "r");
    int process = 0, display = -1;
    ASSERT_EQ(fscanf(server, "%d %d", &process, &display), 2) << "Xvfb did not start";
    setenv("DISPLAY", (":" + std::to_string(display)).c_str(), 1);

    const Format format(operations.createPixelFormat(0, coreList));
    const Context made(operations.createContext(format.get(), nullptr));
    const Buffer buffer(operations.createPixelBuffer(0, 0, 0, 8, 8));
    ASSERT_NE(made, nullptr);
    const View root{0, DefaultRootWindow(x11::Connection::open(0)->display())};
    EXPECT_TRUE(operations.setView(made.get(), root));
    EXPECT_TRUE(operations.makeCurrent(made.get()));
    kill(process, SIGKILL);
    pclose(server);

    operations.flushBuffer(made.get());
    int32_t width = -1;
    operations.viewSize(root, &width, nullptr);
    EXPECT_EQ(width, -1);
    operations.flushBuffer(made.get());
    EXPECT_FALSE(operations.setView(made.get(), root));
    EXPECT_FALSE(operations.setPixelBuffer(made.get(), buffer.get()));
    EXPECT_EQ(operations.createPixelFormat(0, coreList), nullptr);
    EXPECT_EQ(operations.createContext(format.get(), nullptr), nullptr);
    operations.clearCurrentContext();
    EXPECT_FALSE(operations.makeCurrent(made.get()));

    setenv("DISPLAY", before.c_str(), 1);
    EXPECT_NE(Format(operations.createPixelFormat(0, coreList)), nullptr);
}

} // namespace
