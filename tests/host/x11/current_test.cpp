#include "x11_fixture.h"

#include <atomic>
#include <thread>

namespace {

using CurrentOnX11 = X11Host;

TEST_F(CurrentOnX11, WithoutADrawableAndAttachedLater) {
    for (const auto *list : {coreList, legacyList}) {
        const auto made = context(list);
        ASSERT_TRUE(operations.makeCurrent(made.get()));
        EXPECT_EQ(operations.currentContext(), made.get());
        EXPECT_NE(glString(GL_VERSION), nullptr);

        const Window target = window(32, 32);
        ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
        EXPECT_EQ(glXGetCurrentDrawable(), target);
        ASSERT_TRUE(operations.setView(made.get(), {}));
        EXPECT_NE(glXGetCurrentDrawable(), target);
        EXPECT_EQ(operations.currentContext(), made.get());
        operations.clearCurrentContext();
        EXPECT_EQ(operations.currentContext(), nullptr);
        EXPECT_EQ(glXGetCurrentContext(), nullptr);
    }
}

TEST_F(CurrentOnX11, ThreadThatEndsWithAContextCurrentLetsItGo) {
    auto made = context();
    std::thread([&] { ASSERT_TRUE(operations.makeCurrent(made.get())); }).join();
    EXPECT_TRUE(operations.makeCurrent(made.get()));
}

TEST_F(CurrentOnX11, SavedBindingsOfOursAndOfTheApplicationComeBack) {
    const auto probe = context(), made = context();
    const Window target = window(32, 32);
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    auto *saved = operations.saveBinding();
    ASSERT_TRUE(operations.makeCurrent(probe.get()));
    operations.restoreBinding(saved);
    EXPECT_EQ(operations.currentContext(), made.get());
    EXPECT_EQ(glXGetCurrentDrawable(), target);

    int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, 0};
    XVisualInfo *visual = glXChooseVisual(application, DefaultScreen(application), attributes);
    ASSERT_NE(visual, nullptr);
    const GLXContext own = glXCreateContext(application, visual, nullptr, True);
    const Window draw = window(32, 32, visual), read = window(32, 32, visual);
    XFree(visual);
    const auto bindOwn = [&] { return glXMakeContextCurrent(application, draw, read, own); };
    ASSERT_TRUE(bindOwn());
    EXPECT_EQ(operations.currentContext(), nullptr); // not ours, whatever we bound before
    saved = operations.saveBinding();
    ASSERT_TRUE(operations.makeCurrent(probe.get()));
    operations.restoreBinding(saved);
    EXPECT_EQ(operations.currentContext(), nullptr);
    EXPECT_EQ(glXGetCurrentContext(), own);
    EXPECT_EQ(glXGetCurrentDisplay(), application);
    EXPECT_EQ(glXGetCurrentDrawable(), draw);
    EXPECT_EQ(glXGetCurrentReadDrawable(), read);

    operations.clearCurrentContext();
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
    glXDestroyContext(application, own);
}

TEST_F(CurrentOnX11, FourThreadsCreateBindAndSwapAtOnce) {
    std::vector<Window> windows;
    int attributes[] = {GLX_RGBA, 0};
    XVisualInfo *visual = glXChooseVisual(application, DefaultScreen(application), attributes);
    for (int i = 0; i < 4; ++i)
        windows.push_back(i % 2 ? window(48, 48, visual) : window(48, 48));
    XFree(visual);
    XSync(application, False);
    std::atomic<int> swaps = 0;
    std::vector<std::thread> threads;
    for (const Window target : windows) {
        threads.emplace_back([&, target] {
            for (int round = 0; round < 5; ++round) {
                const auto made = context(round % 2 ? coreList : legacyList);
                const Buffer buffer(operations.createPixelBuffer(0, 0, 0, 8, 8));
                ASSERT_TRUE(operations.setView(made.get(), {0, target}));
                ASSERT_TRUE(operations.makeCurrent(made.get()));
                operations.setSwapInterval(made.get(), 0);
                for (int frame = 0; frame < 10; ++frame) {
                    clearTo(0, 1, 0);
                    operations.flushBuffer(made.get());
                    ++swaps;
                }
                operations.viewSize({0, target}, nullptr, nullptr); // waits for the layer's connection
                EXPECT_TRUE(operations.setPixelBuffer(made.get(), buffer.get()));
                operations.clearCurrentContext();
            }
        });
    }
    for (auto &thread : threads)
        thread.join();
    EXPECT_EQ(swaps, 200);
    for (const Window target : windows)
        EXPECT_EQ(pixel(target, 5, 5), 0x00FF00u);
}

} // namespace
