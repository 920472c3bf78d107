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

    // The layer's requests arrive by another connection, which the server may serve later.
    XWindowAttributes whenResized(Window window, int width) {
        XWindowAttributes attributes{};
        for (int i = 0; i < 200 && attributes.width != width; ++i) {
            if (i > 0) usleep(10000);
            XGetWindowAttributes(application, window, &attributes);
        }
        EXPECT_EQ(attributes.width, width);
        return attributes;
    }

    void drawAndFlush(ContextContainer *container, float red, float green, float blue) {
        ASSERT_TRUE(operations.makeCurrent(container));
        clearTo(red, green, blue);
        operations.flushBuffer(container);
        operations.viewSize(operations.view(container), nullptr, nullptr); // waits for the layer's connection
    }
};

TEST_F(AttachOnX11, WindowOfTheDefaultVisualIsDrawnDirectly) {
    const auto made = context();
    const Window target = window(64, 48); // not flushed: the layer has to wait for the application's connection
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    EXPECT_EQ(operations.view(made.get()), viewOf(target));
    drawAndFlush(made.get(), 1, 0, 0);
    EXPECT_EQ(pixel(target, 60, 40), 0xFF0000u);
    EXPECT_TRUE(childrenOf(target).empty());
    operations.setSwapInterval(made.get(), 7);
    operations.setSwapInterval(made.get(), -1);
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
        drawAndFlush(made.get(), 0, 0, 1);
        ASSERT_EQ(childrenOf(target).size(), 1u);
        const Window child = childrenOf(target)[0];
        EXPECT_EQ(pixel(child, 60, 40), 0x0000FFu);

        XResizeWindow(application, target, 100, 90);
        XSync(application, False);
        operations.flushBuffer(made.get());
        const auto attributes = whenResized(child, 100);
        EXPECT_EQ(attributes.height, 90);
        EXPECT_EQ(attributes.all_event_masks, 0); // input goes to the parent
        EXPECT_EQ(attributes.map_state, IsViewable);
        drawAndFlush(made.get(), 1, 1, 0);
        EXPECT_EQ(pixel(child, 95, 85), 0xFFFF00u);

        XResizeWindow(application, target, 30, 20);
        XSync(application, False);
        int32_t width = 0, height = 0;
        operations.viewSize(viewOf(target), &width, &height);
        EXPECT_EQ(width, 30);
        EXPECT_EQ(whenResized(child, 30).height, 20);

        operations.clearCurrentContext();
        ASSERT_TRUE(operations.setView(second.get(), viewOf(target)));
        EXPECT_EQ(childrenOf(target).size(), 1u); // used again
        XDestroyWindow(application, target);
        XSync(application, False);
        EXPECT_FALSE(operations.setView(second.get(), viewOf(target)));
    }
}

// An application that tries one config after the other on a window found the first one's child over all later frames.
TEST_F(AttachOnX11, ChildIsSeenOnlyWhileItIsDrawnTo) {
    constexpr uint32_t list[] = {
        OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, SampleBuffers, 1, Samples, 4, 0};
    const auto direct = context(), sampled = context(list);
    const Window target = window(64, 48);
    ASSERT_TRUE(operations.setView(sampled.get(), viewOf(target)));
    if (childrenOf(target).empty()) GTEST_SKIP() << "this server has samples in its default visual";
    for (const auto &[drawn, state] : {std::pair(direct.get(), IsUnmapped), std::pair(sampled.get(), IsViewable)}) {
        ASSERT_TRUE(operations.setView(drawn, viewOf(target)));
        drawAndFlush(drawn, 1, 0, 0);
        XWindowAttributes attributes{};
        XGetWindowAttributes(application, childrenOf(target)[0], &attributes);
        EXPECT_EQ(attributes.map_state, state);
    }
}

TEST_F(AttachOnX11, WhatCannotBeDrawnToIsRefusedAndChangesNothing) {
    const auto made = context();
    const Window target = window(32, 32);
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    const Window inputOnly = XCreateWindow(application, DefaultRootWindow(application), 0, 0, 8, 8, 0, 0, InputOnly,
                                           static_cast<Visual *>(CopyFromParent), 0, nullptr);
    const Pixmap pixmap = XCreatePixmap(application, DefaultRootWindow(application), 8, 8, 24);
    for (const Window bad : {Window(0x12345), Window(1), inputOnly, pixmap}) {
        EXPECT_FALSE(operations.setView(made.get(), viewOf(bad))) << bad;
        EXPECT_EQ(operations.view(made.get()), viewOf(target));
        EXPECT_EQ(glXGetCurrentDrawable(), target);
    }
}

TEST_F(AttachOnX11, WindowThatIsDestroyedWhileBound) {
    const auto visual = otherVisual(DefaultDepth(application, DefaultScreen(application)));
    for (const bool hasChild : {false, true}) {
        SCOPED_TRACE(hasChild);
        if (hasChild && !visual.visual) continue;
        const auto made = context();
        const Window target = window(64, 48, hasChild ? &visual : nullptr);
        ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
        drawAndFlush(made.get(), 1, 0, 0);
        XDestroyWindow(application, target);
        XSync(application, False);
        // The swap comes first: a draw at once would have the software renderer allocate by a random size.
        for (int i = 0; i < 3; ++i) {
            operations.flushBuffer(made.get());
            clearTo(0, 1, 0);
        }
        EXPECT_FALSE(operations.setView(made.get(), viewOf(target)));
        operations.clearCurrentContext();
        operations.flushBuffer(made.get());

        // Destroyed while attached only.
        const Window gone = window(64, 48, hasChild ? &visual : nullptr);
        ASSERT_TRUE(operations.setView(made.get(), viewOf(gone)));
        XDestroyWindow(application, gone);
        XSync(application, False);
        EXPECT_FALSE(operations.makeCurrent(made.get()));
        operations.flushBuffer(made.get());

        const Window next = window(64, 48);
        ASSERT_TRUE(operations.setView(made.get(), viewOf(next)));
        drawAndFlush(made.get(), 0, 0, 1);
        EXPECT_EQ(pixel(next, 5, 5), 0x0000FFu);
    }
}

TEST_F(AttachOnX11, PixelBuffersAreDrawnToAndOutliveTheirRelease) {
    const auto made = context(), other = context(legacyList);
    Buffer buffer(operations.createPixelBuffer(0x1908, 0xDE1, 2, 16, 8));
    ASSERT_TRUE(operations.setPixelBuffer(made.get(), buffer.get()));
    ASSERT_TRUE(operations.setPixelBuffer(other.get(), buffer.get()));
    EXPECT_EQ(operations.view(made.get()), View{});
    buffer.reset();
    drawAndFlush(made.get(), 1, 0, 1);
    GLubyte color[4] = {};
    gl<void (*)(GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void *)>("glReadPixels")(15, 7, 1, 1, GL_RGBA,
                                                                                         GL_UNSIGNED_BYTE, color);
    EXPECT_EQ(color[0], 255);
    EXPECT_EQ(color[1], 0);
    EXPECT_EQ(color[2], 255);

    // Taken away from a current context, which stays current without a drawable.
    EXPECT_TRUE(operations.setPixelBuffer(made.get(), nullptr));
    EXPECT_EQ(operations.currentContext(), made.get());
}

TEST_F(AttachOnX11, ContextsShareObjects) {
    const auto first = context();
    const Context second(operations.createContext(format().get(), first.get()));
    ASSERT_NE(second, nullptr);
    ASSERT_TRUE(operations.makeCurrent(first.get()));
    GLuint texture = 0;
    gl<void (*)(GLsizei, GLuint *)>("glGenTextures")(1, &texture);
    gl<void (*)(GLenum, GLuint)>("glBindTexture")(GL_TEXTURE_2D, texture);
    ASSERT_TRUE(operations.makeCurrent(second.get()));
    EXPECT_TRUE(gl<GLboolean (*)(GLuint)>("glIsTexture")(texture));
}

} // namespace
