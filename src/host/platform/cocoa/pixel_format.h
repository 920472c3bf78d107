// Pixel formats on Cocoa. The list uses Cocoa's attribute numbers, so it is passed to the platform unchanged. There is
// one display, whatever its host value is.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

PixelFormat *createPixelFormat(uint64_t display, const uint32_t *attributes);
int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute);
PixelFormat *derivePixelFormat(const PixelFormat *format, const uint32_t *attributes);
void releasePixelFormat(PixelFormat *format);

} // namespace host::platform::cocoa
