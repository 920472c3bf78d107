#include "x11_fixture.h"

namespace {

using PixelFormatsOnX11 = X11Host;

TEST_F(PixelFormatsOnX11, GiveAtLeastWhatIsAsked) {
    const std::vector<uint32_t> lists[] = {
        {0}, // nothing asked
        {OpenGLProfile, profile3_2Core, 0},
        {OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, AlphaSize, 8, DepthSize, 24, StencilSize, 8,
         SampleBuffers, 1, Samples, 4, 0},
        {DoubleBuffer, SampleBuffers, 1, Samples, 1000, 0}, // more samples than any host has
    };
    for (const auto &list : lists) {
        const auto chosen = format(list.data());
        ASSERT_NE(chosen, nullptr);
        for (size_t i = 0; list[i]; ++i) {
            const uint32_t attribute = list[i];
            const int32_t value = attribute == DoubleBuffer ? 1 : static_cast<int32_t>(list[++i]);
            if (attribute == SampleBuffers || attribute == Samples) continue; // these come as near as they can
            EXPECT_GE(operations.pixelFormatValue(chosen.get(), attribute), value) << attribute;
        }
        EXPECT_NE(Format(operations.derivePixelFormat(chosen.get(), legacyList)), nullptr);
    }
    const uint32_t unknown[] = {4711, 5, 0}, tooDeep[] = {ColorSize, 24, DepthSize, 1000, 0};
    EXPECT_EQ(operations.pixelFormatValue(format(unknown).get(), 4711), 0);
    EXPECT_EQ(format(tooDeep), nullptr);
    EXPECT_NE(Format(operations.createPixelFormat(1, coreList)), nullptr); // no address: the default display
}

TEST_F(PixelFormatsOnX11, ContextsHaveTheProfileOfTheFormat) {
    const std::tuple<const uint32_t *, const char *, GLint> rows[] = {{coreList, "3.2", 1}, {legacyList, "1.4", 2}};
    for (const auto &[list, oldest, profileMask] : rows) {
        const auto made = context(list);
        ASSERT_TRUE(operations.makeCurrent(made.get()));
        EXPECT_GE(std::string(glString(GL_VERSION)).substr(0, 3), oldest);
        GLint mask = 0;
        gl<void (*)(GLenum, GLint *)>("glGetIntegerv")(0x9126, &mask); // GL_CONTEXT_PROFILE_MASK
        EXPECT_EQ(mask, profileMask);
    }
    EXPECT_EQ(operations.createContext(nullptr, nullptr), nullptr);
}

} // namespace
