#include "host/platform/x11/pixel_format.h"

namespace host::platform::x11 {

namespace {

struct SizeRow {
    uint32_t attribute;
    int32_t FormatSizes::*size;
};

constexpr SizeRow sizeRows[] = {
    {DoubleBuffer, &FormatSizes::isDoubleBuffered},
    {ColorSize, &FormatSizes::color},
    {AlphaSize, &FormatSizes::alpha},
    {DepthSize, &FormatSizes::depth},
    {StencilSize, &FormatSizes::stencil},
    {SampleBuffers, &FormatSizes::sampleBuffers},
    {Samples, &FormatSizes::samples},
};

PixelFormat *choose(Connection *connection, const uint32_t *attributes) {
    if (!connection) return nullptr;
    FormatSizes wanted;
    uint32_t profile = profileLegacy;
    for (; *attributes; ++attributes) {
        const uint32_t attribute = *attributes;
        const uint32_t value = attribute == DoubleBuffer ? 1 : *++attributes;
        if (attribute == OpenGLProfile) profile = value;
        for (const auto &row : sizeRows) {
            if (row.attribute == attribute) wanted.*row.size = static_cast<int32_t>(value);
        }
    }
    const auto *config = connection->configs().choose(wanted);
    return config ? new PixelFormat{*connection, *config, profile} : nullptr;
}

} // namespace

PixelFormat *createPixelFormat(uint64_t display, const uint32_t *attributes) {
    return choose(Connection::open(display), attributes);
}

int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute) {
    if (attribute == OpenGLProfile) return static_cast<int32_t>(format->profile);
    if (attribute == NativeVisualId) return static_cast<int32_t>(format->config.visual.visualid);
    if (attribute == NativeVisualType) return format->config.visual.c_class;
    for (const auto &row : sizeRows) {
        if (row.attribute == attribute) return format->config.sizes.*row.size;
    }
    return 0;
}

PixelFormat *derivePixelFormat(const PixelFormat *format, const uint32_t *attributes) {
    return choose(&format->connection, attributes);
}

void releasePixelFormat(PixelFormat *format) {
    delete format;
}

} // namespace host::platform::x11
