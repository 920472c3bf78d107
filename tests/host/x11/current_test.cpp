#include "x11_fixture.h"

#include <thread>

namespace {

using CurrentOnX11 = X11Host;

TEST_F(CurrentOnX11, WithoutADrawableAndAttachedLater) {
    for (const auto *list : {coreList, legacyList}) {
        const auto made = context(list);
        ASSERT_TRUE(operations.makeCurrent(made.get()));
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

TEST_F(CurrentOnX11, ReleasedContextGoesWhenItIsNoLongerCurrent) {
    auto made = context();
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    const auto *container = made.get();
    made.reset();
    EXPECT_EQ(operations.currentContext(), container);
    EXPECT_NE(glString(GL_VERSION), nullptr);
    operations.clearCurrentContext();
    EXPECT_EQ(operations.currentContext(), nullptr);
}

TEST_F(CurrentOnX11, ThreadThatEndsWithAContextCurrentLetsItGo) {
    auto made = context();
    std::thread([&] { ASSERT_TRUE(operations.makeCurrent(made.get())); }).join();
    EXPECT_TRUE(operations.makeCurrent(made.get()));
}

TEST_F(CurrentOnX11, SavedBindingsOfOursAndOfTheApplicationComeBack) {
    const auto probe = context(), made = context();
    const auto probeOnce = [&] {
        auto *saved = operations.saveBinding();
        ASSERT_TRUE(operations.makeCurrent(probe.get()));
        operations.restoreBinding(saved);
    };
    const Window target = window(32, 32);
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    probeOnce();
    EXPECT_EQ(operations.currentContext(), made.get());
    EXPECT_EQ(glXGetCurrentDrawable(), target);

    int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, 0};
    XVisualInfo *visual = glXChooseVisual(application, DefaultScreen(application), attributes);
    ASSERT_NE(visual, nullptr);
    const GLXContext own = glXCreateContext(application, visual, nullptr, True);
    const Window draw = window(32, 32, visual), read = window(32, 32, visual);
    XFree(visual);
    ASSERT_TRUE(glXMakeContextCurrent(application, draw, read, own));
    EXPECT_EQ(operations.currentContext(), nullptr); // not ours, whatever we bound before
    probeOnce();
    EXPECT_EQ(operations.currentContext(), nullptr);
    EXPECT_EQ(glXGetCurrentContext(), own);
    EXPECT_EQ(glXGetCurrentDisplay(), application);
    EXPECT_EQ(std::pair(glXGetCurrentDrawable(), glXGetCurrentReadDrawable()), std::pair(draw, read));

    operations.clearCurrentContext();
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
    glXDestroyContext(application, own);
}

} // namespace
