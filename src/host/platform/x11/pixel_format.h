// Pixel formats on X11: a framebuffer config of one connection, and the profile that the list requested.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"
#include "host/platform/x11/connection.h"

namespace host::platform {

namespace x11 {

// The desktop OpenGL that a context is to be; no version for one that carries OpenGL ES.
struct DesktopVersion {
    int32_t major = 0, minor = 0;
    int32_t profileMask = 0;
    int32_t flags = 0;
    bool checksNoErrors = false;
};

} // namespace x11

// Constant; the connection and its configs live as long as the process.
struct PixelFormat {
    x11::Connection &connection;
    const x11::FbConfig &config;
    uint32_t profile = profileLegacy; // the default for lists without a profile
    bool fitsConfig = false;          // created for one config, whose attributes it keeps
    bool fitsAnyDrawable = false;     // its contexts have no config of their own
    bool isRobust = false;
    bool losesContextOnReset = false;
    x11::DesktopVersion desktop = {};
};

namespace x11 {

// The value of RobustContexts.
int32_t robustContexts(const Connection &connection);

PixelFormat *createPixelFormat(uint64_t display, const uint32_t *attributes);
int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute);
PixelFormat *derivePixelFormat(const PixelFormat *format, const uint32_t *attributes);
void releasePixelFormat(PixelFormat *format);

} // namespace x11

} // namespace host::platform
