// Pixel format attribute lists: which format the configs share, or each has; the probe's, and the one that a context
// gets.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host {

// Sizes in bits, as the config that stands for the host says them.
struct PixelFormatRequest {
    uint64_t display = 0;
    bool hasWindowBit = false;
    int32_t redSize = 0, greenSize = 0, blueSize = 0, alphaSize = 0;
    int32_t depthSize = 0, stencilSize = 0;
    int32_t sampleBuffers = 0, samples = 0;
};

// What a context promises when a program reads out of bounds, or the host is reset.
struct Robustness {
    bool isRobust = false;
    bool losesContextOnReset = false;
};

// Null when the host has nothing fitting.
[[nodiscard]] platform::PixelFormat *makeHostPixelFormat(const PixelFormatRequest &request);
// A format for this config alone: the nearest that the host has, or one of just these sizes. Null when there is none.
[[nodiscard]] platform::PixelFormat *makeFittingPixelFormat(const PixelFormatRequest &request, bool exactly);
// A format for contexts that go with drawables of any config. Null when the host gives none.
[[nodiscard]] platform::PixelFormat *makeConfiglessPixelFormat(uint64_t display);
// A core format on the default display with nothing else asked for.
[[nodiscard]] platform::PixelFormat *makeProbePixelFormat();
// Reads the format's values back and asks for them again, always double-buffered, with the profile that is wanted.
[[nodiscard]] platform::PixelFormat *deriveContextPixelFormat(const platform::PixelFormat *format, bool legacy,
                                                              const Robustness &robustness = {});

} // namespace host
