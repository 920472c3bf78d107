#include "x11_fixture.h"

#include <unistd.h>

namespace {

class AttachOnX11 : public X11Host {
protected:
    // Any TrueColor visual but the default one, of that depth.
    XVisualInfo otherVisual(int depth) {
        XVisualInfo wanted{}, result{};
        wanted.depth = depth;
        wanted.c_class = TrueColor;
        int count = 0;
        XVisualInfo *found = XGetVisualInfo(application, VisualDepthMask | VisualClassMask, &wanted, &count);
        for (int i = 0; i < count; ++i) {
            if (found[i].visual != DefaultVisual(application, DefaultScreen(application))) result = found[i];
        }
        if (found) XFree(found);
        return result;
    }
    int defaultDepth() { return DefaultDepth(application, DefaultScreen(application)); }

    // The layer's requests arrive by another connection, which the server may serve later.
    XWindowAttributes whenResized(Window window, int width) {
        XWindowAttributes attributes{};
        for (int i = 0; i < 6000 && attributes.width != width; ++i) {
            if (i > 0) usleep(10000);
            XGetWindowAttributes(application, window, &attributes);
        }
        EXPECT_EQ(attributes.width, width);
        return attributes;
    }

    void resize(Window window, int width, int height) {
        XResizeWindow(application, window, width, height);
        XSync(application, False);
    }

    void drawAndFlush(ContextContainer *container, float red, float green, float blue) {
        ASSERT_TRUE(operations.makeCurrent(container));
        clearTo(red, green, blue);
        operations.flushBuffer(container);
        operations.viewSize(operations.view(container), nullptr, nullptr); // waits for the layer's connection
    }
};

TEST_F(AttachOnX11, WindowOfTheDefaultVisualIsDrawnDirectlyAndStaysWhereAnotherIsRefused) {
    const auto made = context();
    const Window target = window(64, 48); // not flushed: the layer has to wait for the application's connection
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    drawAndFlush(made.get(), 1, 0, 0);
    EXPECT_EQ(pixel(target, 60, 40), 0xFF0000u);
    EXPECT_THAT(childrenOf(target), IsEmpty());

    const Window inputOnly = XCreateWindow(application, DefaultRootWindow(application), 0, 0, 8, 8, 0, 0, InputOnly,
                                           static_cast<Visual *>(CopyFromParent), 0, nullptr);
    const Pixmap pixmap = XCreatePixmap(application, DefaultRootWindow(application), 8, 8, 24);
    for (const Window bad : {Window(0x12345), Window(1), inputOnly, pixmap}) {
        EXPECT_FALSE(operations.setView(made.get(), viewOf(bad))) << bad;
        EXPECT_EQ(operations.view(made.get()), viewOf(target));
        EXPECT_EQ(glXGetCurrentDrawable(), target);
    }
}

TEST_F(AttachOnX11, WindowsOfOtherVisualsGetAChildThatFollowsThem) {
    for (const int depth : {DefaultDepth(application, DefaultScreen(application)), 32}) {
        SCOPED_TRACE(depth);
        const auto visual = otherVisual(depth);
        if (!visual.visual) continue; // servers need not have any
        const auto made = context(), second = context(legacyList);
        const Window target = window(64, 48, &visual);
        ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
        EXPECT_EQ(operations.view(made.get()), viewOf(target));
        const auto children = childrenOf(target);
        ASSERT_THAT(children, SizeIs(1));
        drawAndFlush(made.get(), 0, 0, 1);
        EXPECT_EQ(pixel(children[0], 60, 40), 0x0000FFu);

        resize(target, 100, 90);
        operations.flushBuffer(made.get());
        EXPECT_EQ(whenResized(children[0], 100).all_event_masks, 0); // input goes to the parent
        resize(target, 30, 20);
        operations.viewSize(viewOf(target), nullptr, nullptr); // a question is enough
        EXPECT_EQ(whenResized(children[0], 30).height, 20);

        operations.clearCurrentContext();
        ASSERT_TRUE(operations.setView(second.get(), viewOf(target)));
        EXPECT_EQ(childrenOf(target), children); // used again
    }
}

TEST_F(AttachOnX11, PixelBuffersAreDrawnToAndOutliveTheirRelease) {
    for (const auto &[width, height] : {std::pair(0, 4), std::pair(4, 0), std::pair(-1, -1)})
        EXPECT_EQ(operations.createPixelBuffer(0, 0, 0, width, height), nullptr);
    const auto made = context(), other = context(legacyList);
    Buffer buffer(operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8));
    int32_t width = 0, height = 0;
    operations.pixelBufferSize(buffer.get(), &width, nullptr);
    operations.pixelBufferSize(buffer.get(), nullptr, &height);
    EXPECT_EQ(std::pair(width, height), std::pair(16, 8));
    ASSERT_TRUE(operations.setPixelBuffer(made.get(), buffer.get()));
    ASSERT_TRUE(operations.setPixelBuffer(other.get(), buffer.get()));
    EXPECT_EQ(operations.view(made.get()), View{});
    buffer.reset();
    drawAndFlush(made.get(), 1, 0, 1);
    uint32_t color = 0;
    gl<void (*)(GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void *)>("glReadPixels")(15, 7, 1, 1, GL_RGBA,
                                                                                         GL_UNSIGNED_BYTE, &color);
    EXPECT_EQ(color & 0xFFFFFF, 0xFF00FFu);

    // Taken away from a current context, which stays current without a drawable.
    EXPECT_TRUE(operations.setPixelBuffer(made.get(), nullptr));
    EXPECT_EQ(operations.currentContext(), made.get());
}

} // namespace
