// What the Cocoa operations say to the platform, driven through the neutral code above them.
#include <gtest/gtest.h>

#include <thread>

#include "foundation/dynamic_library.h"
#include "foundation/paths.h"
#include "host/cocoa/platform_log.h"
#include "host/host_context.h"
#include "host/operations_host.h"
#include "host/pixel_format.h"
#include "host/probe_context.h"

namespace {

using namespace cocoa_tests;
using namespace host;
using namespace host::platform;
using namespace std::string_literals;

class Cocoa : public testing::Test {
protected:
    Cocoa() { restart(); }
};

const PixelFormatRequest shared = {.hasWindowBit = true,
                                   .redSize = 8,
                                   .greenSize = 8,
                                   .blueSize = 8,
                                   .alphaSize = 8,
                                   .depthSize = 24,
                                   .stencilSize = 8,
                                   .sampleBuffers = 1,
                                   .samples = 4};

std::shared_ptr<glove::ISurface> surfaceOf(const View &view) {
    return createHostWindowSurface(view.display, view.window);
}

TEST_F(Cocoa, AttributeListsToTheNumber) {
    auto *format = makeHostPixelFormat(shared);
    static_cast<void>(makeHostPixelFormat({}));
    static_cast<void>(makeProbePixelFormat());
    EXPECT_EQ(takeMessages(), "NSOpenGLPixelFormat1 init 99 12800 5 8 24 11 8 12 24 13 8 55 1 56 4 0\n"
                              "NSOpenGLPixelFormat2 init 99 12800 8 0 11 0 12 0 13 0 55 0 56 0 0\n"
                              "NSOpenGLPixelFormat3 init 99 12800 0\n");
    auto *single = makeHostPixelFormat({.redSize = 8, .samples = 4});
    for (const auto &[from, number, legacy, list] :
         {std::tuple(format, "1", 1, "99 4096 5 8 24 11 8 12 24 13 8 55 1 56 4 0"),
          {format, "1", 0, "99 12800 5 8 24 11 8 12 24 13 8 55 1 56 4 0"},
          {format, "1", 2, "99 12800 5 8 24 11 8 12 24 13 8 55 1 56 4 0"},
          {single, "4", 0, "99 12800 5 8 8 11 0 12 0 13 0 55 0 56 4 0"}}) {
        takeMessages();
        const auto handle = createHostContext({.format = from, .legacy = legacy});
        std::string expected;
        for (const char *attribute : {"5", "8", "11", "12", "13", "55", "56"})
            expected += "NSOpenGLPixelFormat"s + number + " getValues " + attribute + " 0\n";
        const auto messages = takeMessages();
        EXPECT_EQ(messages.substr(0, expected.size()), expected) << "for virtual screen 0";
        EXPECT_NE(messages.find(" init "s + list + "\n"), std::string::npos) << messages;
    }
}

TEST_F(Cocoa, OwnersOfEachObject) {
    auto *format = makeHostPixelFormat(shared);
    auto first = createHostContext({.format = format});
    auto second = createHostContext({.format = format, .share = first->context});
    EXPECT_NE(takeMessages().find("NSOpenGLContext2 init NSOpenGLPixelFormat3 NSOpenGLContext1\n"), std::string::npos);
    const auto surface = surfaceOf(makeView(4, 4, "t"));
    EXPECT_TRUE(makeHostContextCurrent(second.get(), surface));
    setHostSwapInterval(second.get(), 7);
    const void *context = current();
    EXPECT_EQ(retainCount(second->context->container()), 1u);
    EXPECT_EQ(retainCount(context), 1u) << "the container's alone, without a pool around";
    auto *saved = operations.saveBinding();
    EXPECT_EQ(retainCount(context), 2u);
    operations.restoreBinding(saved);
    EXPECT_EQ(retainCount(context), 1u);
    EXPECT_TRUE(makeHostContextCurrent(nullptr, {}));
    takeMessages();
    second.reset();
    EXPECT_EQ(takeMessages(), "NSOpenGLContext2 dealloc\n") << "neither its format nor its share context";
    EXPECT_EQ(createHostContext({.format = nullptr})->context->container(), nullptr);
    EXPECT_EQ(takeMessages(), "");
    operations.releasePixelFormat(format);
    const Buffer buffer(operations.createPixelBuffer(0, 0, 0, 64, 32));
    EXPECT_EQ(retainCount(buffer.get()), 1u);
    EXPECT_EQ(takeMessages(), "NSOpenGLPixelFormat1 dealloc\nNSOpenGLPixelBuffer1 init 0 0 0 64 32\n");
}

TEST_F(Cocoa, BindingInOrder) {
    const auto handle = createHostContext({.format = makeHostPixelFormat(shared)});
    auto *buffer = operations.createPixelBuffer(0, 0, 0, 4, 4);
    const View view = makeView(4, 4, "t"), other = makeView(4, 4, "t");
    const auto window = surfaceOf(view), late = surfaceOf(other), odd = surfaceOf(makeOther()),
               disguised = surfaceOf({0, reinterpret_cast<uint64_t>(buffer)});
    const auto pbuffer = createHostPBufferSurface(nullptr);
    const auto bind = [&](const std::shared_ptr<glove::ISurface> &surface) {
        takeMessages();
        EXPECT_TRUE(makeHostContextCurrent(handle.get(), surface));
        return takeMessages();
    };
    EXPECT_EQ(bind(nullptr), "NSOpenGLContext1 setView nil\n");
    EXPECT_EQ(current(), nullptr) << "detached only";
    EXPECT_EQ(bind(odd), "NSOpenGLContext1 makeCurrentContext\n") << "no class that can be attached";
    EXPECT_EQ(bind(window), "NSOpenGLContext1 setView NSView1\n");
    EXPECT_EQ(bind(disguised), "NSOpenGLContext1 setPixelBuffer NSOpenGLPixelBuffer1 0 0 0\n");
    EXPECT_EQ(bind(pbuffer), "NSOpenGLContext1 setPixelBuffer NSOpenGLPixelBuffer2 0 0 0\n");
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(bind(window), "NSOpenGLContext1 setView NSView1\n");
    window->swapBuffers();
    late->swapBuffers();
    setHostSwapInterval(handle.get(), -3);
    EXPECT_EQ(takeMessages(), "NSOpenGLContext1 flushBuffer\nNSOpenGLContext1 setValues -3 222\n");

    setFrame(other, 5, 5);
    EXPECT_EQ(takeMessages(), "") << "a view that was never bound";
    setFrame(view, 5, 5);
    std::string updates;
    for (int i = 0; i < 10; ++i)
        updates += "NSOpenGLContext1 update\n";
    EXPECT_EQ(takeMessages(), updates) << "one for each of the ten binds";
    EXPECT_TRUE(makeHostContextCurrent(nullptr, {}));
    EXPECT_EQ(takeMessages(), "NSOpenGLContext clearCurrentContext\n");
}

TEST_F(Cocoa, ProbeWithNothingCurrent) {
    auto probe = createHostProbeContext(nullptr);
    EXPECT_TRUE(isHostProbeCurrent(*probe));
    const auto messages = takeMessages();
    EXPECT_TRUE(messages.starts_with("NSOpenGLPixelFormat1 init 99 12800 0\nNSOpenGLPixelFormat2 init 99 12800 0\n"));
    EXPECT_TRUE(messages.ends_with("init NSOpenGLPixelFormat3 nil\nNSOpenGLContext1 makeCurrentContext\n")) << messages;
    destroyHostProbeContext(std::move(probe));
    EXPECT_EQ(takeMessages(), "NSOpenGLContext clearCurrentContext\nNSOpenGLContext1 dealloc\n");
    EXPECT_EQ(current(), nullptr);
}

TEST_F(Cocoa, FrameIsReadOnTheMainThread) {
    const View view = makeView(64.9, 48.1, nullptr, Place::inNoWindow);
    const auto expectSize = [&] {
        int32_t width = 0, height = 0;
        operations.viewSize(view, &width, &height);
        EXPECT_EQ(width, 64);
        EXPECT_EQ(height, 48);
    };
    expectSize();
    EXPECT_EQ(takeMessages(), "NSView1 frame on the main thread\n");
    std::thread thread(expectSize);
    runMainQueueOnce();
    thread.join();
    EXPECT_EQ(takeMessages(), "dispatch_sync\nNSView1 frame on the main thread\n");
    EXPECT_EQ(operations.viewTitle(view), "") << "in no window";
}

TEST_F(Cocoa, NoPoolIsNeeded) {
    testing::internal::CaptureStderr();
    const View view = makeView(4, 4, std::string(5000, 'x').c_str());
    std::thread([&] {
        const auto handle = createHostContext({.format = makeHostPixelFormat(shared)});
        EXPECT_TRUE(makeHostContextCurrent(handle.get(), surfaceOf(view)));
        surfaceOf(view)->swapBuffers();
        EXPECT_EQ(operations.viewTitle(view).size(), 5000u);
        EXPECT_FALSE(getTemporaryDirectory().empty());
        EXPECT_TRUE(makeHostContextCurrent(nullptr, {}));
    }).join();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "the runtime tells of objects that no pool holds";
}

TEST_F(Cocoa, NamesAndDirectories) {
    EXPECT_EQ(hostOpenGLLibraryName, "libGL.dylib"s);
    EXPECT_EQ(es1LibraryName, "libGLESv1_CM.dylib"s);
    EXPECT_EQ(es2LibraryName, "libGLESv2.dylib"s);
    EXPECT_EQ(hostLibrarySearchPaths(),
              (std::vector{getOwnDirectory(), "/System/Library/Frameworks/OpenGL.framework/Libraries/"s}));
}

} // namespace
