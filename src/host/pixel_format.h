// Pixel format attribute lists: the format that the configs share, or each config's own; the probe's, and that of a
// context.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host {

// Sizes in bits, from the config that determines the host format.
struct PixelFormatRequest {
    uint64_t display = 0;
    bool hasWindowBit = false;
    int32_t redSize = 0, greenSize = 0, blueSize = 0, alphaSize = 0;
    int32_t depthSize = 0, stencilSize = 0;
    int32_t sampleBuffers = 0, samples = 0;
};

// The robustness that a context has when a program reads out of bounds, or the host is reset.
struct Robustness {
    bool isRobust = false;
    bool losesContextOnReset = false;
};

// A context that is the application's own desktop OpenGL, as it requests it.
struct DesktopContext {
    int32_t major = 1, minor = 0;
    int32_t profileMask = 0;
    int32_t flags = 0; // debug, forward compatible
    bool checksNoErrors = false;
};

// Null when the host has no matching format.
[[nodiscard]] platform::PixelFormat *makeHostPixelFormat(const PixelFormatRequest &request);
// A format for one config only: the host's nearest, or one of exactly these sizes. Null when there is none.
[[nodiscard]] platform::PixelFormat *makeFittingPixelFormat(const PixelFormatRequest &request, bool exactly);
// A format for contexts that can draw to drawables of any config. Null when the host has none.
[[nodiscard]] platform::PixelFormat *makeConfiglessPixelFormat(uint64_t display);
// A core format on the default display with no other attributes.
[[nodiscard]] platform::PixelFormat *makeProbePixelFormat();
// Reads the format's values and requests them again, always double-buffered, with the given profile. desktop: null for
// a context that carries OpenGL ES.
[[nodiscard]] platform::PixelFormat *deriveContextPixelFormat(const platform::PixelFormat *format, bool legacy,
                                                              const Robustness &robustness = {},
                                                              const DesktopContext *desktop = nullptr);

} // namespace host
