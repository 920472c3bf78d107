#include "x11/back_end_fixture.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <thread>

namespace {

// The library that holds the function: "libGL". Empty for null.
std::string homeOf(void *function) {
    Dl_info info = {};
    if (!dladdr(function, &info)) return "";
    const std::string file = std::filesystem::path(info.dli_fname).filename();
    return file.substr(0, file.find('.'));
}

zvEsContext lateContext = nullptr;
decltype(&zvDeleteEsContext) deleteLate = nullptr;

// Constructed before the back end is opened, so destroyed after its static objects.
struct EndsLate {
    EndsLate() {
        std::atexit([] { deleteLate(lateContext); });
    }
};
class BackEndThatEndsLate : private EndsLate, public BackEnd {};

} // namespace

TEST_F(BackEnd, DrawsFromObjectZeroWithAShaderThatSizesPoints) {
    startWith(2, 0, plainVertex, greenFragment);
    draw(GL_TRIANGLES, {-1, -1, 0, -1, -1, 0});
    draw(GL_POINTS, {0.5, 0.5});
    EXPECT_EQ(pixel(1, 1), green);
    EXPECT_EQ(pixel(size * 3 / 4 - 3, size * 3 / 4 - 3), green);
    EXPECT_EQ(pixel(size - 2, 1), black);
}

TEST_F(BackEnd, TheLinkedNamesReachTheCurrentContext) {
    start(2, 0);
    OWN(glClearColor)(0, 1, 0, 1);
    OWN(glClear)(GL_COLOR_BUFFER_BIT);
    EXPECT_EQ(pixel(3, 3), green);
    EXPECT_EQ(homeOf(symbol("glClear")), "libGLESv2");
    // The current context may be one of the ES 1 back end, whose handle this back end must not read.
    const zvThread own = thread;
    int foreign = 0;
    thread = {&foreign, nullptr};
    const std::string version = text(GL_VERSION);
    thread = own;
    EXPECT_THAT(version, testing::MatchesRegex("[1-9].*")) << "the host's own";
    // A thread that never bound a context has none, and its calls do not affect the others.
    std::thread([&] { OWN(glHint)(GL_GENERATE_MIPMAP_HINT, GL_BACK); }).join();
    EXPECT_EQ(error(), GL_NO_ERROR);
}

TEST_F(BackEnd, TellsTheVersionsOfTheContext) {
    const auto check = [&](int major, int minor, const char *version, const char *language) {
        start(major, minor);
        EXPECT_THAT(text(GL_VERSION), testing::StartsWith(version));
        EXPECT_EQ(text(GL_SHADING_LANGUAGE_VERSION), language);
        EXPECT_EQ(integer(GL_MAJOR_VERSION), major);
        EXPECT_EQ(integer(GL_MINOR_VERSION), minor);
    };
#define VERSION(major, minor, text, language) check(major, minor, text, language);
#include "x11/data/versions.def"
#undef VERSION
}

TEST_F(BackEnd, GivesFunctionsForNamesOfEsAlone) {
    start(3, 2);
#define ENTRY(name, home) EXPECT_EQ(homeOf(OWN(zvGetExtProcAddress)(name)), home) << name;
#include "x11/data/entries.def"
#undef ENTRY
    EXPECT_EQ(OWN(zvGetExtProcAddress)(nullptr), nullptr);
    GLint bound = 0;
    es<decltype(glGetIntegerv)>("zvGetIntegerv")(GL_VERTEX_ARRAY_BINDING, &bound);
    EXPECT_NE(bound, 0);
}

TEST_F(BackEnd, WritesSrgbValuesWhereTheImageTakesThem) {
    constexpr GLenum framebufferSrgb = 0x8DB9;
    start(3, 0, true);
    attribs.srgbFramebuffer = 0;
    OWN(zvSetEsContextAttribs)(current, &attribs);

    drawToImage(GL_SRGB8_ALPHA8);
    clear(0.5F, 0.5F, 0.5F);
    EXPECT_NEAR(pixel(2, 2)[0], 188, 1);
    ES(glDisable)(framebufferSrgb);
    clear(0.5F, 0.5F, 0.5F);
    EXPECT_NEAR(pixel(2, 2)[0], 128, 1) << "the application's switch";
    EXPECT_EQ(integer(framebufferSrgb), GL_FALSE);
    ES(glEnable)(framebufferSrgb);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 0);
    clear(0.5F, 0.5F, 0.5F);
    EXPECT_NEAR(pixel(2, 2)[0], 128, 1) << "the surface does not";
}

TEST_F(BackEndThatEndsLate, DeletesAContextWhenTheProcessIsEnding) {
    start(2, 0);
    deleteLate = OWN(zvDeleteEsContext);
    lateContext = std::exchange(current, nullptr);
}
