#include "host/pixel_format.h"
#include "host/probe_context.h"
#include "recorded.h"

namespace {

using namespace host;

using ProbeContexts = RecordedHost;

TEST_F(ProbeContexts, OnAThreadWithNothingCurrent) {
    recordingSetFormatValue(platform::DepthSize, 24);
    const auto windowSystem = std::make_shared<glove::WSAPI>();
    auto probe = createHostProbeContext(windowSystem);
    EXPECT_TRUE(isHostProbeCurrent(*probe));
    EXPECT_EQ(windowSystem.use_count(), 2);
    // Derived with what the host gave, and double-buffered whatever it says.
    EXPECT_EQ(takeLog(), "createPixelFormat(0, 99 12800 0) = format1\n"
                         "createPixelFormat(0, 99 12800 0) = format2\n"
                         "pixelFormatValue(format2, 5) = 0\n"
                         "pixelFormatValue(format2, 8) = 0\n"
                         "pixelFormatValue(format2, 11) = 0\n"
                         "pixelFormatValue(format2, 12) = 24\n"
                         "pixelFormatValue(format2, 13) = 0\n"
                         "pixelFormatValue(format2, 55) = 0\n"
                         "pixelFormatValue(format2, 56) = 0\n"
                         "derivePixelFormat(format2, 99 12800 5 8 0 11 0 12 24 13 0 55 0 56 0 0) = format3\n"
                         "createContext(format3, null) = context1\n"
                         "saveBinding() = null\n"
                         "currentContext() = null\n"
                         "makeCurrent(context1) = true\n");
    const auto *container = probe->probe->context->container();
    EXPECT_EQ(currentHostContext(), container);

    destroyHostProbeContext(std::move(probe));
    EXPECT_EQ(takeLog(), "clearCurrentContext()\nreleaseContext(context1)\n");
    EXPECT_EQ(currentHostContext(), container); // goes on naming the dead probe

    // A swap in between compares that word and never follows it.
    createHostWindowSurface(0, 0)->swapBuffers();
    EXPECT_EQ(takeLog(), "");
}

TEST_F(ProbeContexts, PutsBackWhatWasCurrent) {
    recordingMakeForeignCurrent(9);
    auto probe = createHostProbeContext(nullptr);
    takeLog();
    destroyHostProbeContext(std::move(probe));
    EXPECT_EQ(takeLog(), "restoreBinding(foreign9)\nreleaseContext(context1)\n");
    EXPECT_EQ(currentHostContext(), nullptr);

    const auto handle = createHostContext({.format = makeProbePixelFormat()});
    const std::shared_ptr<glove::ISurface> window = createHostWindowSurface(0, 291);
    ASSERT_TRUE(makeHostContextCurrent(handle.get(), window));
    probe = createHostProbeContext(nullptr);
    EXPECT_NE(currentHostContext(), handle->context->container());
    takeLog();
    destroyHostProbeContext(std::move(probe));
    window->swapBuffers();
    EXPECT_EQ(takeLog(), "restoreBinding(context2)\nreleaseContext(context3)\n"
                         "view(context2) = 0:291\nflushBuffer(context2)\n");
}

} // namespace
