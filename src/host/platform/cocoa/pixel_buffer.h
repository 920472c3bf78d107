// Pixel buffers: the platform's own objects, asked for with whatever values come. What it refuses is null.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

PixelBuffer *createPixelBuffer(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                               int32_t height, const PixelFormat *);
void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height);
void releasePixelBuffer(PixelBuffer *buffer);

} // namespace host::platform::cocoa
