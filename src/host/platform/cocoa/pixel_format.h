// Pixel formats on Cocoa. Their attribute numbers are the list's own vocabulary, so a list goes to the platform as it
// is. There is one display, whatever its host word.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

PixelFormat *createPixelFormat(uint64_t display, const uint32_t *attributes);
int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute);
PixelFormat *derivePixelFormat(const PixelFormat *format, const uint32_t *attributes);
void releasePixelFormat(PixelFormat *format);

} // namespace host::platform::cocoa
