// Pixel buffers: the platform's own objects, created with the values as given. Null when the platform rejects them.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

// macOS has no pixmaps.
inline PixelBuffer *createPixmapBuffer(uint64_t, uint64_t, const PixelFormat *) {
    return nullptr;
}
inline int32_t pixmapDepth(uint64_t, uint64_t) {
    return 0;
}
inline bool copyToPixmap(ContextContainer *, PixelBuffer *) {
    return false;
}
PixelBuffer *createPixelBuffer(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                               int32_t height, const PixelFormat *);
void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height);
void releasePixelBuffer(PixelBuffer *buffer);

} // namespace host::platform::cocoa
