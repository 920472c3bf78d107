#include "host/platform/cocoa/pixel_buffer.h"

#import "host/platform/cocoa/objects.h"

namespace host::platform::cocoa {

PixelBuffer *createPixelBuffer(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                               int32_t height, const PixelFormat *) {
    return handleOf<PixelBuffer>([[NSOpenGLPixelBuffer alloc] initWithTextureTarget:target
                                                              textureInternalFormat:internalFormat
                                                              textureMaxMipMapLevel:maxMipLevel
                                                                         pixelsWide:width
                                                                         pixelsHigh:height]);
}

void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height) {
    if (!buffer) return;
    if (width) *width = static_cast<int32_t>([objectOf(buffer) pixelsWide]);
    if (height) *height = static_cast<int32_t>([objectOf(buffer) pixelsHigh]);
}

void releasePixelBuffer(PixelBuffer *buffer) {
    [objectOf(buffer) release];
}

} // namespace host::platform::cocoa
