#include "host/host_surface.h"

#include <EGL/egl.h>

#include "host/host_context.h"
#include "host/pixel_format.h"
#include "recorded.h"

namespace {

using namespace host;

using HostSurfaces = RecordedHost;

TEST_F(HostSurfaces, SwapFlushesOnlyTheViewOfTheThreadsContext) {
    const auto handle = createHostContext({.format = makeProbePixelFormat()});
    const int32_t attributes[] = {EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_NONE};
    const auto window = createHostWindowSurface(7, 291), sameWindow = createHostWindowSurface(7, 291),
               otherDisplay = createHostWindowSurface(8, 291), noWindow = createHostWindowSurface(7, 0),
               buffer = createHostPBufferSurface(attributes), noBuffer = createHostPBufferSurface(nullptr);
    const std::shared_ptr<glove::ISurface> nothing;
    const struct {
        const char *reason;
        const std::shared_ptr<glove::ISurface> &bound, &swapped;
        bool isFlushed;
    } rows[] = {
        {"another surface of the bound window", window, sameWindow, true},
        {"same number on another server", window, otherDisplay, false},
        {"a pixel buffer is nobody's view", buffer, buffer, false},
        {"no buffer equals no view", buffer, noBuffer, true},
        {"no window equals no view", nothing, noWindow, true},
        {"no buffer is not a view", window, noBuffer, false},
        {"detached", nothing, window, false},
    };
    for (const auto &row : rows) {
        ASSERT_TRUE(makeHostContextCurrent(handle.get(), row.bound));
        takeLog();
        row.swapped->swapBuffers();
        EXPECT_EQ(takeLog().ends_with("flushBuffer(context1)\n"), row.isFlushed) << row.reason;
    }
    ASSERT_TRUE(makeHostContextCurrent(nullptr, nothing));
    takeLog();
    noBuffer->swapBuffers();
    EXPECT_EQ(takeLog(), "");
}

} // namespace
