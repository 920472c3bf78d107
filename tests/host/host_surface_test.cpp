#include "host/host_surface.h"

#include <EGL/egl.h>

#include <vector>

#include "host/host_context.h"
#include "host/pixel_format.h"
#include "recorded.h"

namespace {

using namespace host;

using HostSurfaces = RecordedHost;

struct PBufferRow {
    const char *reason;
    std::vector<int32_t> attributes;
    const char *arguments;
};

const PBufferRow pbufferRows[] = {
    {"no texture attributes", {EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_NONE}, "0, 0, 0, 64, 32"},
    {"crossed over, unknown values as they are",
     {EGL_TEXTURE_TARGET, EGL_TEXTURE_2D, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_NONE},
     "12383, 12382, 0, 0, 0"},
    {"both none",
     {EGL_TEXTURE_TARGET, EGL_NO_TEXTURE, EGL_TEXTURE_FORMAT, EGL_NO_TEXTURE, EGL_NONE},
     "6408, 3553, 0, 0, 0"},
    {"colour formats as target, a target as format",
     {EGL_TEXTURE_TARGET, EGL_TEXTURE_RGB, EGL_TEXTURE_FORMAT, EGL_TEXTURE_2D, EGL_NONE},
     "6407, 3553, 0, 0, 0"},
    {"the last one counts, others are passed over",
     {EGL_TEXTURE_TARGET, EGL_TEXTURE_RGB, EGL_LARGEST_PBUFFER, 1, EGL_VG_COLORSPACE, 9, EGL_TEXTURE_TARGET,
      EGL_TEXTURE_RGBA, EGL_MIPMAP_LEVEL, 3, EGL_WIDTH, -1, EGL_NONE},
     "6408, 0, 3, -1, 0"},
    {"empty", {EGL_NONE}, "0, 0, 0, 0, 0"},
};

TEST_F(HostSurfaces, PixelBufferRequest) {
    for (const auto &row : pbufferRows) {
        SCOPED_TRACE(row.reason);
        const auto request = readPBufferRequest(row.attributes.data());
        std::string text;
        for (const int64_t value : {int64_t(request.target), int64_t(request.internalFormat),
                                    int64_t(request.maxMipLevel), int64_t(request.width), int64_t(request.height)}) {
            text += (text.empty() ? "" : ", ") + std::to_string(value);
        }
        EXPECT_EQ(text, row.arguments);
    }
    EXPECT_EQ(readPBufferRequest(nullptr).width, 0);
}

TEST_F(HostSurfaces, AnswerSizeAndTitle) {
    recordingSetWindow(291, 640, 480, "Gr\u00f6\u00dfe");
    const int32_t attributes[] = {EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_NONE};
    const auto window = createHostWindowSurface(7, 291), noWindow = createHostWindowSurface(7, 0);
    const auto buffer = createHostPBufferSurface(attributes), noBuffer = createHostPBufferSurface(nullptr);
    struct Row {
        const glove::ISurface &surface;
        int32_t width, height, isPBuffer;
        const char *title;
    };
    for (const auto &row : {Row{*window, 640, 480, 0, "Gr\u00f6\u00dfe"}, Row{*noWindow, 0, 0, 0, ""},
                            Row{*buffer, 64, 32, 1, "pbuffer"}, Row{*noBuffer, 0, 0, 1, "pbuffer"}}) {
        EXPECT_EQ(row.surface.width(), row.width);
        EXPECT_EQ(row.surface.height(), row.height);
        EXPECT_EQ(row.surface.isPBuffer(), row.isPBuffer);
        EXPECT_EQ(row.surface.title(), row.title);
    }
    recordingSetWindow(291, 641, 480, "");
    EXPECT_EQ(window->width(), 641); // asked anew
    EXPECT_EQ(createHostPixmapSurface(), nullptr);
}

TEST_F(HostSurfaces, SwapFlushesOnlyTheViewOfTheThreadsContext) {
    const auto handle = createHostContext({.format = makeProbePixelFormat(), .legacy = 0});
    const int32_t attributes[] = {EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_NONE};
    const std::shared_ptr<glove::ISurface> window = createHostWindowSurface(7, 291);
    const std::shared_ptr<glove::ISurface> sameWindow = createHostWindowSurface(7, 291);
    const std::shared_ptr<glove::ISurface> otherDisplay = createHostWindowSurface(8, 291);
    const std::shared_ptr<glove::ISurface> noWindow = createHostWindowSurface(7, 0);
    const std::shared_ptr<glove::ISurface> buffer = createHostPBufferSurface(attributes);
    const std::shared_ptr<glove::ISurface> noBuffer = createHostPBufferSurface(nullptr);
    const std::shared_ptr<glove::ISurface> nothing;

    struct Row {
        const char *reason;
        const std::shared_ptr<glove::ISurface> &bound, &swapped;
        bool isFlushed;
    };
    const Row rows[] = {
        {"bound window", window, window, true},
        {"another surface of the bound window", window, sameWindow, true},
        {"same number on another server", window, otherDisplay, false},
        {"a pixel buffer is nobody's view", buffer, buffer, false},
        {"no buffer equals no view", buffer, noBuffer, true},
        {"no window equals no view", nothing, noWindow, true},
        {"no buffer is not a view", window, noBuffer, false},
        {"detached", nothing, window, false},
    };
    for (const auto &row : rows) {
        ASSERT_TRUE(makeHostContextCurrent(handle.get(), row.bound));
        takeLog();
        row.swapped->swapBuffers();
        EXPECT_EQ(takeLog().find("flushBuffer(context1)") != std::string::npos, row.isFlushed) << row.reason;
    }
    ASSERT_TRUE(makeHostContextCurrent(nullptr, nothing));
    takeLog();
    noBuffer->swapBuffers();
    EXPECT_EQ(takeLog(), "");
}

} // namespace
