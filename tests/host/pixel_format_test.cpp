#include "host/pixel_format.h"
#include "recorded.h"

namespace {

using namespace host;

struct ListRow {
    const char *reason;
    PixelFormatRequest request;
    const char *log;
};

const ListRow listRows[] = {
    {"what the configs share",
     {.display = 0,
      .hasWindowBit = true,
      .redSize = 8,
      .greenSize = 8,
      .blueSize = 8,
      .alphaSize = 8,
      .depthSize = 24,
      .stencilSize = 8,
      .sampleBuffers = 1,
      .samples = 4},
     "createPixelFormat(0, 99 12800 5 8 24 11 8 12 24 13 8 55 1 56 4 0) = format1\n"},
    {"no window bit, on an application's display, colours summed",
     {.display = 77, .redSize = 5, .greenSize = 6, .blueSize = 5},
     "createPixelFormat(77, 99 12800 8 16 11 0 12 0 13 0 55 0 56 0 0) = format1\n"},
};

using PixelFormats = RecordedHost;

TEST_F(PixelFormats, ListsHaveTheirOrder) {
    for (const auto &row : listRows) {
        SCOPED_TRACE(row.reason);
        recordingReset();
        EXPECT_NE(makeHostPixelFormat(row.request), nullptr);
        EXPECT_EQ(takeLog(), row.log);
    }
    EXPECT_NE(makeProbePixelFormat(), nullptr);
    EXPECT_EQ(takeLog(), "createPixelFormat(0, 99 12800 0) = format2\n");
}

TEST_F(PixelFormats, DerivedFormatTakesWhatTheHostGaveAndIsAlwaysDoubleBuffered) {
    auto *format = makeHostPixelFormat({.redSize = 8, .greenSize = 8, .blueSize = 8, .depthSize = 16});
    recordingSetFormatValue(platform::DepthSize, 24);
    takeLog();
    EXPECT_NE(deriveContextPixelFormat(format, false), nullptr);
    EXPECT_NE(deriveContextPixelFormat(format, true), nullptr);
    const std::string reads = "pixelFormatValue(format1, 5) = 0\n"
                              "pixelFormatValue(format1, 8) = 24\n"
                              "pixelFormatValue(format1, 11) = 0\n"
                              "pixelFormatValue(format1, 12) = 24\n"
                              "pixelFormatValue(format1, 13) = 0\n"
                              "pixelFormatValue(format1, 55) = 0\n"
                              "pixelFormatValue(format1, 56) = 0\n";
    const std::string rest = " 5 8 24 11 0 12 24 13 0 55 0 56 0 0) = ";
    EXPECT_EQ(takeLog(), reads + "derivePixelFormat(format1, 99 12800" + rest + "format2\n" + reads +
                             "derivePixelFormat(format1, 99 4096" + rest + "format3\n");
}

} // namespace
