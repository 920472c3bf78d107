#include "host/pixel_format.h"

#include <iterator>
#include <vector>

namespace host {

using namespace platform;

namespace {

constexpr uint32_t readBack[] = {DoubleBuffer, ColorSize, AlphaSize, DepthSize, StencilSize, SampleBuffers, Samples};

void append(std::vector<uint32_t> &list, uint32_t attribute, int32_t value) {
    list.push_back(attribute);
    list.push_back(static_cast<uint32_t>(value));
}

// All sizes but those of red, green and blue.
void appendOtherSizes(std::vector<uint32_t> &list, const PixelFormatRequest &request) {
    append(list, AlphaSize, request.alphaSize);
    append(list, DepthSize, request.depthSize);
    append(list, StencilSize, request.stencilSize);
    append(list, SampleBuffers, request.sampleBuffers);
    append(list, Samples, request.samples);
}

void appendDesktopContext(std::vector<uint32_t> &list, const DesktopContext &desktop) {
    append(list, DesktopMajorVersion, desktop.major);
    append(list, DesktopMinorVersion, desktop.minor);
    append(list, DesktopProfileMask, desktop.profileMask);
    append(list, DesktopFlags, desktop.flags);
    if (desktop.checksNoErrors) append(list, DesktopNoError, 1);
}

} // namespace

PixelFormat *makeHostPixelFormat(const PixelFormatRequest &request) {
    std::vector<uint32_t> list{OpenGLProfile, profile3_2Core};
    if (request.hasWindowBit) list.push_back(DoubleBuffer);
    append(list, ColorSize, request.redSize + request.greenSize + request.blueSize);
    appendOtherSizes(list, request);
    list.push_back(0);
    return operations.createPixelFormat(request.display, list.data());
}

PixelFormat *makeFittingPixelFormat(const PixelFormatRequest &request, bool exactly) {
    std::vector<uint32_t> list{OpenGLProfile, profile3_2Core, DoubleBuffer, Fit, exactly ? fitExactly : fitNearest};
    append(list, RedSize, request.redSize);
    append(list, GreenSize, request.greenSize);
    append(list, BlueSize, request.blueSize);
    appendOtherSizes(list, request);
    list.push_back(0);
    return operations.createPixelFormat(request.display, list.data());
}

PixelFormat *makeConfiglessPixelFormat(uint64_t display) {
    constexpr uint32_t list[] = {OpenGLProfile,
                                 profile3_2Core,
                                 DoubleBuffer,
                                 Fit,
                                 fitAnyDrawable,
                                 ColorSize,
                                 24,
                                 DepthSize,
                                 24,
                                 StencilSize,
                                 8,
                                 0};
    return operations.createPixelFormat(display, list);
}

PixelFormat *makeProbePixelFormat() {
    constexpr uint32_t list[] = {OpenGLProfile, profile3_2Core, 0};
    return operations.createPixelFormat(0, list);
}

PixelFormat *deriveContextPixelFormat(const PixelFormat *format, bool legacy, const Robustness &robustness,
                                      const DesktopContext *desktop) {
    int32_t values[std::size(readBack)];
    for (size_t i = 0; i < std::size(readBack); ++i) {
        values[i] = operations.pixelFormatValue(format, readBack[i]);
    }
    // Double-buffered whatever the format says: a context may be bound to a window later.
    std::vector<uint32_t> list{OpenGLProfile, legacy ? profileLegacy : profile3_2Core, DoubleBuffer};
    for (size_t i = 1; i < std::size(readBack); ++i)
        append(list, readBack[i], values[i]);
    if (robustness.isRobust) append(list, RobustAccess, 1);
    if (robustness.losesContextOnReset) append(list, LosesContextOnReset, 1);
    if (desktop) appendDesktopContext(list, *desktop);
    list.push_back(0);
    return operations.derivePixelFormat(format, list.data());
}

} // namespace host
