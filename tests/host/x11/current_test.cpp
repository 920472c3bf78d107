#include "x11_fixture.h"

#include <thread>

namespace {

using CurrentOnX11 = X11Host;

TEST_F(CurrentOnX11, WithoutADrawableAndGoneWhenReleasedAndNoLongerCurrent) {
    for (const auto *list : {coreList, legacyList}) {
        auto made = context(list);
        ASSERT_TRUE(operations.makeCurrent(made.get()));
        const auto *container = made.get();
        made.reset();
        EXPECT_EQ(operations.currentContext(), container);
        EXPECT_NE(glString(GL_VERSION), nullptr);
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

TEST_F(CurrentOnX11, SavedBindingOfOursComesBack) {
    const auto probe = context(), made = context();
    const Window target = window(32, 32);
    ASSERT_TRUE(operations.setView(made.get(), viewOf(target)));
    ASSERT_TRUE(operations.makeCurrent(made.get()));
    auto *saved = operations.saveBinding();
    ASSERT_TRUE(operations.makeCurrent(probe.get()));
    operations.restoreBinding(saved);
    EXPECT_EQ(operations.currentContext(), made.get());
    EXPECT_EQ(glXGetCurrentDrawable(), target);
}

} // namespace
