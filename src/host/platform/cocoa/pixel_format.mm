#include "host/platform/cocoa/pixel_format.h"

#import "host/platform/cocoa/objects.h"

namespace host::platform::cocoa {

static_assert(uint32_t(NSOpenGLPFADoubleBuffer) == DoubleBuffer && uint32_t(NSOpenGLPFAColorSize) == ColorSize &&
              uint32_t(NSOpenGLPFAAlphaSize) == AlphaSize && uint32_t(NSOpenGLPFADepthSize) == DepthSize &&
              uint32_t(NSOpenGLPFAStencilSize) == StencilSize && uint32_t(NSOpenGLPFASampleBuffers) == SampleBuffers &&
              uint32_t(NSOpenGLPFASamples) == Samples && uint32_t(NSOpenGLPFAOpenGLProfile) == OpenGLProfile &&
              uint32_t(NSOpenGLProfileVersionLegacy) == profileLegacy &&
              uint32_t(NSOpenGLProfileVersion3_2Core) == profile3_2Core);
static_assert(sizeof(NSOpenGLPixelFormatAttribute) == sizeof(uint32_t));

PixelFormat *createPixelFormat(uint64_t, const uint32_t *attributes) {
    // Not every platform header declares the list as const.
    auto *list = reinterpret_cast<NSOpenGLPixelFormatAttribute *>(const_cast<uint32_t *>(attributes));
    return handleOf<PixelFormat>([[NSOpenGLPixelFormat alloc] initWithAttributes:list]);
}

int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute) {
    int32_t value = 0; // the result for an attribute that the format does not have
    [objectOf(format) getValues:&value
                   forAttribute:static_cast<NSOpenGLPixelFormatAttribute>(attribute)
               forVirtualScreen:0];
    return value;
}

PixelFormat *derivePixelFormat(const PixelFormat *, const uint32_t *attributes) {
    return createPixelFormat(0, attributes);
}

void releasePixelFormat(PixelFormat *format) {
    [objectOf(format) release];
}

} // namespace host::platform::cocoa
