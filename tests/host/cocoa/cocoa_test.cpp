// The messages that the Cocoa operations send to the platform, called through the code above them.
#include <gtest/gtest.h>

#include <thread>

#include "foundation/dynamic_library.h"
#include "foundation/paths.h"
#include "host/host_context.h"
#include "host/operations_host.h"
#include "host/pixel_format.h"
#include "host/platform/recording/appkit.h"
#include "host/probe_context.h"
#include "support/file_text.h"

namespace {

using namespace recorded_appkit;
using namespace host;
using namespace host::platform;
using namespace std::string_literals;

// The messages of a case are in a file in data/.
class Cocoa : public testing::Test {
protected:
    Cocoa() { restart(); }
    static void expectMessages(const char *file) {
        EXPECT_EQ(messages, fileText(ZELVANE_SOURCE_DIR "/tests/host/cocoa/data/"s + file));
    }
};

// display, hasWindowBit, red, green, blue, alpha, depth, stencil, sample buffers, samples
const PixelFormatRequest shared = {0, true, 8, 8, 8, 8, 24, 8, 1, 4};

std::shared_ptr<glove::ISurface> surfaceOf(const View &view) {
    return createHostWindowSurface(view.display, view.window);
}

TEST_F(Cocoa, AttributeListsToTheNumber) {
    auto *format = makeHostPixelFormat(shared);
    static_cast<void>(makeHostPixelFormat({}));
    static_cast<void>(makeProbePixelFormat());
    auto *single = makeHostPixelFormat({.redSize = 8, .samples = 4});
    const std::tuple<const char *, PixelFormat *, int> rows[] = {
        {"legacy", format, 1}, {"core", format, 0}, {"any", format, 2}, {"core, single", single, 0}};
    for (const auto &[name, from, legacy] : rows) {
        messages += "-- "s + name + "\n";
        const auto handle = createHostContext({.format = from, .legacy = legacy});
    }
    expectMessages("attribute_lists.txt");
}

TEST_F(Cocoa, OwnersOfEachObject) {
    auto *format = makeHostPixelFormat(shared);
    auto first = createHostContext({.format = format});
    auto second = createHostContext({.format = format, .share = first->context});
    EXPECT_NE(makeHostContextCurrent(second.get(), surfaceOf(makeView(4, 4, "t")).get()), HostBinding::failed);
    setHostSwapInterval(second.get(), 7);
    const void *context = current();
    EXPECT_EQ(retainCount(second->context->container()), 1u);
    EXPECT_EQ(retainCount(context), 1u) << "the container's alone, without a pool around";
    auto *saved = operations.saveBinding();
    EXPECT_EQ(retainCount(context), 2u);
    operations.restoreBinding(saved);
    EXPECT_EQ(retainCount(context), 1u);
    EXPECT_EQ(makeHostContextCurrent(nullptr, nullptr), HostBinding::current);
    messages += "-- the second goes, neither its format nor its share context\n";
    second.reset();
    messages += "-- no format, no context\n";
    EXPECT_EQ(createHostContext({.format = nullptr})->context->container(), nullptr);
    messages += "-- the format goes, a buffer comes\n";
    operations.releasePixelFormat(format);
    const Buffer buffer(operations.createPixelBuffer(0, 0, 0, 64, 32, nullptr));
    EXPECT_EQ(retainCount(buffer.get()), 1u);
    expectMessages("owners.txt");
}

TEST_F(Cocoa, BindingInOrder) {
    const auto handle = createHostContext({.format = makeHostPixelFormat(shared)});
    auto *buffer = operations.createPixelBuffer(0, 0, 0, 4, 4, nullptr);
    const View view = makeView(4, 4, "t"), other = makeView(4, 4, "t");
    const auto window = surfaceOf(view), late = surfaceOf(other);
    const std::pair<const char *, std::shared_ptr<glove::ISurface>> rows[] = {
        {"nothing: detached only", nullptr},
        {"no class that can be attached", surfaceOf(makeOther())},
        {"a window", window},
        {"a buffer as a window", surfaceOf({0, reinterpret_cast<uint64_t>(buffer)})},
        {"a buffer", createHostPBufferSurface(nullptr)},
        {"the window again", window},
        {"and again", window},
    };
    messages.clear();
    for (const auto &[name, surface] : rows) {
        messages += "-- "s + name + "\n";
        EXPECT_NE(makeHostContextCurrent(handle.get(), surface.get()), HostBinding::failed);
        EXPECT_EQ(current() == nullptr, surface == nullptr);
    }
    messages += "-- swap, each surface\n";
    window->swapBuffers();
    late->swapBuffers();
    setHostSwapInterval(handle.get(), -3);
    messages += "-- the frame of a view that was never bound\n";
    setFrame(other, 5, 5);
    messages += "-- and of one that was bound three times\n";
    setFrame(view, 5, 5);
    EXPECT_EQ(makeHostContextCurrent(nullptr, nullptr), HostBinding::current);
    expectMessages("binding.txt");
}

TEST_F(Cocoa, ProbeWithNothingCurrent) {
    auto probe = createHostProbeContext(nullptr);
    EXPECT_TRUE(isHostProbeCurrent(*probe));
    destroyHostProbeContext(std::move(probe));
    EXPECT_EQ(current(), nullptr);
    expectMessages("probe.txt");
}

TEST_F(Cocoa, FrameIsReadOnTheMainThread) {
    const View view = makeView(64.9, 48.1, nullptr, Place::inNoWindow);
    const auto expectSize = [&] {
        int32_t height = 0;
        operations.viewSize(view, nullptr, &height);
        EXPECT_EQ(height, 48);
    };
    expectSize();
    std::thread(expectSize).join();
    EXPECT_EQ(messages, "NSView1 frame\ndispatch_sync begins\nNSView1 frame\ndispatch_sync ends\n");
    EXPECT_EQ(operations.viewTitle(view), "") << "in no window";
}

TEST_F(Cocoa, NoPoolIsNeeded) {
    testing::internal::CaptureStderr();
    const View view = makeView(4, 4, std::string(5000, 'x').c_str());
    std::thread([&] {
        const auto handle = createHostContext({.format = makeHostPixelFormat(shared)});
        EXPECT_EQ(makeHostContextCurrent(handle.get(), surfaceOf(view).get()), HostBinding::current);
        surfaceOf(view)->swapBuffers();
        EXPECT_EQ(operations.viewTitle(view).size(), 5000u);
        EXPECT_FALSE(getTemporaryDirectory().empty());
        EXPECT_EQ(makeHostContextCurrent(nullptr, nullptr), HostBinding::current);
    }).join();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "the runtime tells of objects that no pool holds";
}

TEST_F(Cocoa, NamesAndDirectories) {
    EXPECT_EQ(hostOpenGLLibraryName + " "s + es1LibraryName + " " + es2LibraryName,
              "libGL.dylib libGLESv1_CM.dylib libGLESv2.dylib");
    EXPECT_EQ(hostLibrarySearchPaths(),
              (std::vector{getOwnDirectory(), "/System/Library/Frameworks/OpenGL.framework/Libraries/"s}));
}

} // namespace
