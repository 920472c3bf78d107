#include "host/host_context.h"

#include <EGL/egl.h>

#include "host/pixel_format.h"
#include "recorded.h"

namespace {

using namespace host;

class HostContexts : public RecordedHost {
protected:
    static std::unique_ptr<HostContextHandle> create() {
        auto handle = createHostContext({.format = makeProbePixelFormat(), .legacy = 0});
        takeLog();
        return handle;
    }

    std::shared_ptr<glove::ISurface> window = createHostWindowSurface(7, 291);
};

TEST_F(HostContexts, LegacyIsOneAndNothingElse) {
    struct Row {
        int32_t legacy;
        const char *profile;
    };
    for (const Row &row : {Row{0, "99 12800 5"}, Row{1, "99 4096 5"}, Row{2, "99 12800 5"}}) {
        const auto handle = createHostContext({.format = makeProbePixelFormat(), .legacy = row.legacy});
        EXPECT_NE(takeLog().find(row.profile), std::string::npos) << row.legacy;
    }
}

TEST_F(HostContexts, SharesAndReleasesItsContextAndLosesItsFormat) {
    const auto share = create();
    { const auto handle = createHostContext({.format = makeProbePixelFormat(), .legacy = 0, .share = share->context}); }
    const auto log = takeLog();
    EXPECT_NE(log.find("createContext(format4, context1) = context2\nreleaseContext(context2)\n"), std::string::npos)
        << log;
    EXPECT_EQ(log.find("releasePixelFormat"), std::string::npos);
}

TEST_F(HostContexts, WithoutAContextOfTheHostEverythingTreatsItAsNone) {
    recordingFailNext("createContext");
    const HostContextRequest requests[] = {{.format = nullptr}, {.format = makeProbePixelFormat()}};
    for (const auto &request : requests) {
        const auto handle = createHostContext(request);
        takeLog();
        EXPECT_EQ(handle->context->container(), nullptr);
        EXPECT_TRUE(makeHostContextCurrent(handle.get(), window));
        setHostSwapInterval(handle.get(), 1);
        EXPECT_EQ(takeLog(), "clearCurrentContext()\n");
        EXPECT_EQ(currentHostContext(), nullptr);
    }
}

TEST_F(HostContexts, FourCasesOfABind) {
    const auto first = create(), second = create();
    EXPECT_TRUE(makeHostContextCurrent(first.get(), window));
    EXPECT_EQ(takeLog(), "setView(context1, 7:291) = true\n"
                         "observeViewFrame(context1, 7:291)\n"
                         "currentContext() = null\n"
                         "makeCurrent(context1) = true\n");

    // Again: observed once more, but not made current once more.
    EXPECT_TRUE(makeHostContextCurrent(first.get(), window));
    EXPECT_EQ(takeLog(), "setView(context1, 7:291) = true\n"
                         "observeViewFrame(context1, 7:291)\n"
                         "currentContext() = context1\n");

    const int32_t attributes[] = {EGL_WIDTH, 4, EGL_HEIGHT, 2, EGL_NONE};
    const std::shared_ptr<glove::ISurface> buffer = createHostPBufferSurface(attributes);
    EXPECT_TRUE(makeHostContextCurrent(first.get(), buffer));
    EXPECT_EQ(takeLog(), "createPixelBuffer(0, 0, 0, 4, 2) = buffer1\n"
                         "setPixelBuffer(context1, buffer1) = true\n"
                         "currentContext() = context1\n");

    // Without a surface the other context is detached, and the one that was current stays so.
    EXPECT_TRUE(makeHostContextCurrent(second.get(), std::weak_ptr<glove::ISurface>{}));
    EXPECT_EQ(takeLog(), "setView(context2, null) = true\n");
    EXPECT_EQ(platform::operations.currentContext(), first->context->container());
    EXPECT_EQ(currentHostContext(), second->context->container());

    takeLog();
    EXPECT_TRUE(makeHostContextCurrent(nullptr, window));
    EXPECT_EQ(takeLog(), "clearCurrentContext()\n");
    EXPECT_EQ(currentHostContext(), nullptr);
}

TEST_F(HostContexts, FailedBindLeavesTheThreadsContext) {
    const auto first = create(), second = create();
    ASSERT_TRUE(makeHostContextCurrent(first.get(), window));
    for (const char *operation : {"setView", "makeCurrent"}) {
        recordingFailNext(operation);
        EXPECT_FALSE(makeHostContextCurrent(second.get(), window)) << operation;
        EXPECT_EQ(currentHostContext(), first->context->container()) << operation;
    }
}

TEST_F(HostContexts, SwapIntervalHasNoBounds) {
    const auto handle = create();
    for (const int32_t interval : {7, -3, 1000000})
        setHostSwapInterval(handle.get(), interval);
    setHostSwapInterval(nullptr, 1);
    EXPECT_EQ(takeLog(), "setSwapInterval(context1, 7)\n"
                         "setSwapInterval(context1, -3)\n"
                         "setSwapInterval(context1, 1000000)\n");
}

} // namespace
