#include "x11_fixture.h"

#include <cstdlib>
#include <unistd.h>

namespace {

using PixelFormatsOnX11 = X11Host;

TEST_F(PixelFormatsOnX11, GiveAtLeastWhatIsAsked) {
    struct Row {
        const char *reason;
        std::vector<uint32_t> list;
    };
    const Row rows[] = {
        {"nothing asked", {0}},
        {"the probe's", {OpenGLProfile, profile3_2Core, 0}},
        {"what configs share",
         {OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, AlphaSize, 8, DepthSize, 24, StencilSize, 8,
          SampleBuffers, 1, Samples, 4, 0}},
        {"more samples than any host has", {DoubleBuffer, SampleBuffers, 1, Samples, 1000, 0}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.reason);
        const auto chosen = format(row.list.data());
        ASSERT_NE(chosen, nullptr);
        for (size_t i = 0; row.list[i]; ++i) {
            const uint32_t attribute = row.list[i];
            const int32_t value = attribute == DoubleBuffer ? 1 : static_cast<int32_t>(row.list[++i]);
            const int32_t given = operations.pixelFormatValue(chosen.get(), attribute);
            if (attribute == SampleBuffers || attribute == Samples) continue; // these come as near as they can
            EXPECT_GE(given, value) << attribute;
        }
        // A derived one for the same values is there too.
        EXPECT_NE(Format(operations.derivePixelFormat(chosen.get(), legacyList)), nullptr);
    }
    const uint32_t unknown[] = {4711, 5, 0};
    EXPECT_EQ(operations.pixelFormatValue(format(unknown).get(), 4711), 0);
}

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
