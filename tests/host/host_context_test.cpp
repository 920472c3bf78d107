#include "host/host_context.h"

#include <EGL/egl.h>

#include "host/pixel_format.h"
#include "recorded.h"

namespace {

using namespace host;

class HostContexts : public RecordedHost {
protected:
    static std::unique_ptr<HostContextHandle> create(std::shared_ptr<glove::GLContext> share = nullptr) {
        return createHostContext({.format = makeProbePixelFormat(), .share = std::move(share)});
    }

    std::shared_ptr<glove::ISurface> window = createHostWindowSurface(7, 291);
};

TEST_F(HostContexts, SharesAndReleasesItsContextAndLosesItsFormat) {
    const auto share = create();
    create(share->context).reset();
    const auto log = takeLog();
    EXPECT_THAT(log, HasSubstr("createContext(format4, context1) = context2\nreleaseContext(context2)\n"));
    EXPECT_THAT(log, Not(HasSubstr("releasePixelFormat")));
}

TEST_F(HostContexts, WithoutAContextOfTheHostEverythingTreatsItAsNone) {
    recordingFailNext("createContext");
    const HostContextRequest requests[] = {{.format = nullptr}, {.format = makeProbePixelFormat()}};
    for (const auto &request : requests) {
        const auto handle = createHostContext(request);
        takeLog();
        EXPECT_TRUE(makeHostContextCurrent(handle.get(), window));
        setHostSwapInterval(handle.get(), 1);
        EXPECT_EQ(takeLog(), "clearCurrentContext()\n");
        EXPECT_EQ(currentHostContext(), nullptr);
    }
}

TEST_F(HostContexts, FourCasesOfABind) {
    const auto first = create(), second = create();
    const int32_t attributes[] = {EGL_WIDTH, 4, EGL_HEIGHT, 2, EGL_NONE};
    const std::shared_ptr<glove::ISurface> buffer = createHostPBufferSurface(attributes), none;
    const struct {
        const char *reason;
        const HostContextHandle *context;
        const std::shared_ptr<glove::ISurface> &surface;
        const char *log;
    } rows[] = {
        {"the first one", first.get(), window,
         "setView(context1, 7:291) = true\n"
         "observeViewFrame(context1, 7:291)\n"
         "currentContext() = null\n"
         "makeCurrent(context1) = true\n"},
        {"observed once more, but not made current once more", first.get(), window,
         "setView(context1, 7:291) = true\n"
         "observeViewFrame(context1, 7:291)\n"
         "currentContext() = context1\n"},
        {"a pixel buffer", first.get(), buffer,
         "setPixelBuffer(context1, buffer1) = true\n"
         "currentContext() = context1\n"},
        {"without a surface it is detached, and the one that was current stays so", second.get(), none,
         "setView(context2, null) = true\n"},
        {"no context", nullptr, window, "clearCurrentContext()\n"},
    };
    for (const auto &row : rows) {
        takeLog();
        EXPECT_TRUE(makeHostContextCurrent(row.context, row.surface));
        EXPECT_EQ(takeLog(), row.log) << row.reason;
        EXPECT_EQ(currentHostContext(), row.context ? row.context->context->container() : nullptr) << row.reason;
    }
}

} // namespace
