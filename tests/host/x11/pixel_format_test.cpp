#include "x11_fixture.h"

#include <cstdlib>
#include <unistd.h>

namespace {

using PixelFormatsOnX11 = X11Host;

TEST_F(PixelFormatsOnX11, AreNullWhereNothingFitsOrNoServerIs) {
    const uint32_t tooDeep[] = {ColorSize, 24, DepthSize, 1000, 0};
    EXPECT_EQ(format(tooDeep), nullptr);
    const std::string display = getenv("DISPLAY");
    unsetenv("DISPLAY");
    EXPECT_NE(Format(operations.createPixelFormat(0, coreList)), nullptr); // the server that is known already
    setenv("DISPLAY", display.c_str(), 1);
    EXPECT_NE(Format(operations.createPixelFormat(1, coreList)), nullptr); // no address: the default display
}

void expectNothingWithoutServer() {
    for (const char *display : {static_cast<const char *>(nullptr), ":77", "no such server"}) {
        if (display)
            setenv("DISPLAY", display, 1);
        else
            unsetenv("DISPLAY");
        EXPECT_EQ(operations.createPixelFormat(0, coreList), nullptr);
        int32_t width = -1, height = -1;
        operations.viewSize({0, 291}, &width, &height);
        EXPECT_EQ(width, -1);
        EXPECT_EQ(operations.viewTitle({0, 291}), "");
        EXPECT_EQ(operations.saveBinding(), nullptr);
        operations.restoreBinding(nullptr);
    }
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

// In a process of its own, ahead of the cases that open connections.
TEST(PixelFormatsWithoutServerDeathTest, AreNull) {
    EXPECT_EXIT(expectNothingWithoutServer(), testing::ExitedWithCode(0), "");
}

TEST_F(PixelFormatsOnX11, ContextsHaveTheProfileOfTheFormat) {
    struct Row {
        const uint32_t *list;
        const char *oldest;
        GLint profileMask;
    };
    for (const auto &row : {Row{coreList, "3.2", 1}, Row{legacyList, "1.4", 2}}) {
        const auto made = context(row.list);
        ASSERT_NE(made, nullptr);
        ASSERT_TRUE(operations.makeCurrent(made.get()));
        EXPECT_GE(std::string(glString(GL_VERSION)).substr(0, 3), row.oldest);
        GLint mask = 0;
        gl<void (*)(GLenum, GLint *)>("glGetIntegerv")(0x9126, &mask); // GL_CONTEXT_PROFILE_MASK
        EXPECT_EQ(mask, row.profileMask);
    }
    EXPECT_EQ(operations.createContext(nullptr, nullptr), nullptr);
}

} // namespace
