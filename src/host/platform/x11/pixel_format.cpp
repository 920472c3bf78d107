#include "host/platform/x11/pixel_format.h"

#include "host/platform/x11/glx.h"

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

struct Request {
    FormatSizes sizes;
    ChannelSizes channels;
    uint32_t profile = profileLegacy;
    uint32_t fit = 0;
    bool isRobust = false;
    bool losesContextOnReset = false;
    DesktopVersion desktop;
};

Request read(const uint32_t *attributes) {
    Request request;
    for (; *attributes; ++attributes) {
        const uint32_t attribute = *attributes;
        const uint32_t value = attribute == DoubleBuffer ? 1 : *++attributes;
        const auto size = static_cast<int32_t>(value);
        if (attribute == OpenGLProfile) request.profile = value;
        if (attribute == Fit) request.fit = value;
        if (attribute == RobustAccess) request.isRobust = value;
        if (attribute == LosesContextOnReset) request.losesContextOnReset = value;
        if (attribute == DesktopMajorVersion) request.desktop.major = size;
        if (attribute == DesktopMinorVersion) request.desktop.minor = size;
        if (attribute == DesktopProfileMask) request.desktop.profileMask = size;
        if (attribute == DesktopFlags) request.desktop.flags = size;
        if (attribute == DesktopNoError) request.desktop.checksNoErrors = value;
        if (attribute == RedSize) request.channels.red = size;
        if (attribute == GreenSize) request.channels.green = size;
        if (attribute == BlueSize) request.channels.blue = size;
        for (const auto &row : sizeRows) {
            if (row.attribute == attribute) request.sizes.*row.size = size;
        }
    }
    return request;
}

PixelFormat *choose(Connection *connection, const Request &request) {
    if (!connection) return nullptr;
    const bool fitsConfig = request.fit == fitNearest || request.fit == fitExactly;
    const auto *config =
        fitsConfig ? connection->configs().chooseFitting(request.sizes, request.channels, request.fit == fitExactly)
                   : connection->configs().choose(request.sizes);
    if (!config) return nullptr;
    return new PixelFormat{.connection = *connection,
                           .config = *config,
                           .profile = request.profile,
                           .fitsConfig = fitsConfig,
                           .fitsAnyDrawable = request.fit == fitAnyDrawable};
}

// Bits of EGL_SURFACE_TYPE. A software renderer copies its frames to the server, which preserves the back buffer.
// Pixmaps are updated by a swap and require that.
int32_t drawableTypes(const PixelFormat &format) {
    constexpr int32_t pixmap = 2, window = 4, preserved = 0x400;
    const int32_t types = format.config.drawableTypes;
    const bool keepsFrames = format.config.copiesAtSwap || format.connection.isSoftware();
    if (!keepsFrames || !(types & window)) return types & ~pixmap;
    return types | preserved;
}

int32_t glxValue(const PixelFormat &format, int attribute) {
    int value = 0;
    glx().fbConfigAttrib(format.connection.display(), format.config.handle, attribute, &value);
    return value;
}

} // namespace

int32_t robustContexts(const Connection &connection) {
    if (connection.hasGlxExtension("GLX_ARB_create_context_robustness")) return robustOnDemand;
    // Software renderers always check bounds, and they are never reset.
    return connection.isSoftware() ? robustAlways : robustNever;
}

PixelFormat *createPixelFormat(uint64_t display, const uint32_t *attributes) {
    return choose(Connection::open(display), read(attributes));
}

int32_t pixelFormatValue(const PixelFormat *format, uint32_t attribute) {
    const FbConfig &config = format->config;
    switch (attribute) {
    case OpenGLProfile:
        return static_cast<int32_t>(format->profile);
    case NativeVisualId:
        return static_cast<int32_t>(config.visual.visualid);
    case NativeVisualType:
        return config.visual.visualid ? config.visual.c_class : 0;
    case DrawableTypes:
        return drawableTypes(*format);
    case SoftwareRenderer:
        return format->connection.isSoftware();
    case VisualDepth:
        return config.visual.depth;
    case RobustContexts:
        return robustContexts(format->connection);
    case MaxSwapInterval:
        return format->connection.maxSwapInterval();
    case MaxPbufferWidth:
        return glxValue(*format, GLX_MAX_PBUFFER_WIDTH);
    case MaxPbufferHeight:
        return glxValue(*format, GLX_MAX_PBUFFER_HEIGHT);
    case MaxPbufferPixels:
        return glxValue(*format, GLX_MAX_PBUFFER_PIXELS);
    default:
        break;
    }
    for (const auto &row : sizeRows) {
        if (row.attribute == attribute) return config.sizes.*row.size;
    }
    return 0;
}

PixelFormat *derivePixelFormat(const PixelFormat *format, const uint32_t *attributes) {
    const auto request = read(attributes);
    if (!format->fitsConfig && !format->fitsAnyDrawable) return choose(&format->connection, request);
    return new PixelFormat{.connection = format->connection,
                           .config = format->config,
                           .profile = request.profile,
                           .fitsConfig = format->fitsConfig,
                           .fitsAnyDrawable = format->fitsAnyDrawable,
                           .isRobust = request.isRobust,
                           .losesContextOnReset = request.losesContextOnReset,
                           .desktop = request.desktop};
}

void releasePixelFormat(PixelFormat *format) {
    delete format;
}

} // namespace host::platform::x11
