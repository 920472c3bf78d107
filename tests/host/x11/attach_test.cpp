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
