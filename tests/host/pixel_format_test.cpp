#include "host/pixel_format.h"
#include "recorded.h"

namespace {

using namespace host;

using PixelFormats = RecordedHost;

TEST_F(PixelFormats, ListsHaveTheirOrder) {
    const PixelFormatRequest all{.hasWindowBit = true,
                                 .redSize = 8,
                                 .greenSize = 8,
                                 .blueSize = 8,
                                 .alphaSize = 7,
                                 .depthSize = 24,
                                 .stencilSize = 9,
                                 .sampleBuffers = 1,
                                 .samples = 4};
    EXPECT_NE(makeHostPixelFormat(all), nullptr);
    // No window bit, on an application's display, with colours that are summed.
    EXPECT_NE(makeHostPixelFormat({.display = 77, .redSize = 5, .greenSize = 6, .blueSize = 4}), nullptr);
    EXPECT_EQ(takeLog(), "createPixelFormat(0, 99 12800 5 8 24 11 7 12 24 13 9 55 1 56 4 0) = format1\n"
                         "createPixelFormat(77, 99 12800 8 15 11 0 12 0 13 0 55 0 56 0 0) = format2\n");
}

} // namespace
