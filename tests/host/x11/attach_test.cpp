#include "x11_fixture.h"

namespace {

using AttachOnX11 = X11Host;

TEST_F(AttachOnX11, WindowOfTheDefaultVisualIsDrawnDirectly) {
    const auto made = context();
    const Window target = window(64, 48); // not flushed: the layer has to wait for the application's connection
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    EXPECT_EQ(operations.view(made.get()), viewOf(target));
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    EXPECT_EQ(glXGetCurrentDrawable(), target);
    ASSERT_TRUE(operations.setView(made.get(), {}));
    EXPECT_NE(glXGetCurrentDrawable(), target);
    EXPECT_EQ(operations.currentContext(), made.get());
}

// An application that tries one config after the other on a window found the first one's child over all later frames.
TEST_F(AttachOnX11, ChildIsSeenOnlyWhileItIsDrawnTo) {
    constexpr uint32_t list[] = {
        OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, SampleBuffers, 1, Samples, 4, 0};
    const auto direct = context(), sampled = context(list);
    const Window target = window(64, 48);
    for (const auto &[drawn, state] : {std::pair(sampled.get(), IsViewable), std::pair(direct.get(), IsUnmapped)}) {
        ASSERT_TRUE(operations.setView(drawn, viewOf(target)) && operations.makeCurrent(drawn));
        operations.flushBuffer(drawn);
        operations.viewSize(viewOf(target), nullptr, nullptr); // waits for the layer's connection
        Window root = 0, parent = 0, *children = nullptr;
        unsigned count = 0;
        XQueryTree(application, target, &root, &parent, &children, &count);
        if (count == 0) GTEST_SKIP() << "this server has samples in its default visual";
        XWindowAttributes attributes{};
        XGetWindowAttributes(application, children[0], &attributes);
        XFree(children);
        EXPECT_EQ(attributes.map_state, state);
    }
}

TEST_F(AttachOnX11, PixelBuffersOfNoSizeAreRefusedAndTakenAwayOnesLeaveTheContextCurrent) {
    for (const auto &[width, height] : {std::pair(0, 4), std::pair(4, 0), std::pair(-1, -1)})
        EXPECT_EQ(operations.createPixelBuffer(0, 0, 0, width, height), nullptr);
    const auto made = context(), other = context(legacyList);
    Buffer buffer(operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8));
    int32_t width = 0, height = 0;
    operations.pixelBufferSize(buffer.get(), &width, nullptr);
    operations.pixelBufferSize(buffer.get(), nullptr, &height);
    EXPECT_EQ(std::pair(width, height), std::pair(16, 8));
    for (const auto &context : {made.get(), other.get()})
        ASSERT_TRUE(operations.setPixelBuffer(context, buffer.get()) && operations.makeCurrent(context));
    buffer.reset();
    EXPECT_TRUE(operations.setPixelBuffer(other.get(), nullptr));
    EXPECT_EQ(operations.currentContext(), other.get());
    EXPECT_TRUE(operations.makeCurrent(made.get())) << "a buffer outlives its release";
}

} // namespace
