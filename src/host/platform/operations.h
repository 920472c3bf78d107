// Everything that the library needs of a window system and its OpenGL contexts: one list of operations, filled whole by
// each implementation in this order and chosen at build time. The constants are shared by all, the handles opaque.
// Operations run on the calling thread and may be called from any thread; contexts are current per thread.
#pragma once

#include <cstdint>
#include <string>

namespace host::platform {

struct PixelFormat;      // a chosen host format
struct ContextContainer; // owns one host context
struct PixelBuffer;      // an off-screen drawable
struct SavedBinding;     // a thread's current context and drawables

// A native window on the display with the given host value (0 is the host's default display). Window 0 is no view.
struct View {
    uint64_t display = 0;
    uint64_t window = 0;
    const PixelFormat *format = nullptr; // used to draw to it; null for the format of the context
    bool operator==(const View &) const = default;
};

// The drawable of a context: nothing, a view, or a pixel buffer. A null pixel buffer is nothing.
struct NativeObject {
    View view;
    PixelBuffer *pixelBuffer = nullptr;

    [[nodiscard]] bool isView() const { return view.window != 0; }
    [[nodiscard]] bool isPixelBuffer() const { return pixelBuffer != nullptr; }
    [[nodiscard]] bool isNull() const { return !isView() && !isPixelBuffer(); }
};

// Attributes of a pixel format list. A list is pairs ended by 0, except for DoubleBuffer, which has no value.
enum PixelFormatAttribute : uint32_t {
    DoubleBuffer = 5,
    ColorSize = 8,
    AlphaSize = 11,
    DepthSize = 12,
    StencilSize = 13,
    SampleBuffers = 55,
    Samples = 56,
    OpenGLProfile = 99,
    // Queried of formats only, never in a list: the id and class of the visual that a window needs for drawing to it
    // directly, 0 where windows cannot be drawn to; drawable kinds, as bits of EGL_SURFACE_TYPE; limits of the host.
    NativeVisualId = 0x10000,
    NativeVisualType = 0x10001,
    DrawableTypes = 0x10002,
    MaxSwapInterval = 0x10003,
    MaxPbufferWidth = 0x10004,
    MaxPbufferHeight = 0x10005,
    MaxPbufferPixels = 0x10006,
    RobustContexts = 0x10007, // 0 if contexts cannot be robust, 1 if all are, 2 if they are on request
    VisualDepth = 0x10008,    // of the pixmaps that can be drawn to
    SoftwareRenderer = 0x10009,

    // A format for one config only. Fit is 1 for the host's nearest format, 2 for one of exactly these sizes or none;
    // 3 is for contexts that can draw to drawables of any format.
    Fit = 0x10010,
    RedSize = 0x10011,
    GreenSize = 0x10012,
    BlueSize = 0x10013,

    // Properties of contexts of the format, in lists only: whether a context is robust, and loses its objects at a
    // reset.
    RobustAccess = 0x10020,
    LosesContextOnReset = 0x10021,
    // Of contexts that are the application's own desktop OpenGL, in place of OpenGLProfile: the bits of the mask and of
    // the flags (debug, forward compatible) are those of GLX and EGL alike.
    DesktopMajorVersion = 0x10022,
    DesktopMinorVersion = 0x10023,
    DesktopProfileMask = 0x10024,
    DesktopFlags = 0x10025,
    DesktopNoError = 0x10026,
};

constexpr int32_t robustNever = 0;
constexpr int32_t robustAlways = 1;
constexpr int32_t robustOnDemand = 2;

constexpr uint32_t fitNearest = 1;
constexpr uint32_t fitExactly = 2;
constexpr uint32_t fitAnyDrawable = 3;

constexpr uint32_t profileLegacy = 0x1000;
constexpr uint32_t profile3_2Core = 0x3200;

struct PlatformOperations {
    // A format for the display's server by an attribute list. Null when the server is unreachable or nothing matches.
    // Formats live until releasePixelFormat.
    PixelFormat *(*createPixelFormat)(uint64_t display, const uint32_t *attributes);
    // The value that the format's list requested or the host returned; 0 for an attribute that the format lacks.
    int32_t (*pixelFormatValue)(const PixelFormat *format, uint32_t attribute);
    // A copy of the format with another attribute list, for the same display. A format for one config takes only the
    // profile from the list.
    PixelFormat *(*derivePixelFormat)(const PixelFormat *format, const uint32_t *attributes);
    // Null is allowed.
    void (*releasePixelFormat)(PixelFormat *format);

    // A context of the format, sharing objects with share unless that is null. Null when the host fails to create it.
    ContextContainer *(*createContext)(const PixelFormat *format, ContextContainer *share);
    // Drops the owner's reference. A context that is current on a thread is destroyed when it is released there; until
    // then currentContext may return null for it.
    void (*releaseContext)(ContextContainer *container);

    // The container whose context is current on the thread. Null if none is, or one that this library did not create.
    ContextContainer *(*currentContext)();
    void (*clearCurrentContext)();
    // Makes the context current with whatever is attached to it, or without a drawable. False when the host fails.
    bool (*makeCurrent)(ContextContainer *container);

    // Attaches a view in place of whatever was attached; View{} detaches. Takes effect at once on a current context.
    // False when the host reports that the window does not exist or cannot be drawn to.
    bool (*setView)(ContextContainer *container, const View &view);
    // The attached view; View{} when there is none or a pixel buffer is attached.
    View (*view)(const ContextContainer *container);
    // Attaches a pixel buffer in place of whatever was attached; null detaches. Takes effect at once on a current
    // context.
    bool (*setPixelBuffer)(ContextContainer *container, PixelBuffer *buffer);
    // An object to read from in place of the next one that is attached for drawing; it is attached in the same step,
    // since hosts may drop the contents of a window that nothing is bound to. False when the host fails. Hosts that
    // only read what they draw ignore it.
    bool (*setReadObject)(ContextContainer *container, const NativeObject &object);
    // Registers the context to follow the view's frame. Registrations add up, and none is ever removed.
    void (*observeViewFrame)(ContextContainer *container, const View &view);

    // Swaps the buffers of the attached view or pixmap.
    void (*flushBuffer)(ContextContainer *container);
    // Copies the current context's rendering to its view or pixel buffer to a pixmap. False when the host fails.
    bool (*copyToPixmap)(ContextContainer *container, PixelBuffer *pixmap);
    // The age of the back buffer's contents in frames; 0 for undefined contents.
    int32_t (*bufferAge)(ContextContainer *container);
    // Flushes the requests of the application's own connection to the host, for the display of a View.
    void (*flushApplication)(uint64_t display);
    // In frames per swap, passed to the host without a bound.
    void (*setSwapInterval)(ContextContainer *container, int32_t interval);

    // The thread's current context with its drawables, even a foreign context. Null for none.
    SavedBinding *(*saveBinding)();
    // Makes it current again and frees the record. Null is allowed and clears the current context.
    void (*restoreBinding)(SavedBinding *binding);

    // Null when the host rejects the values. format: as of views.
    PixelBuffer *(*createPixelBuffer)(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                                      int32_t height, const PixelFormat *format);
    // A pixel buffer whose contents flushBuffer copies to a pixmap of the display. Null when the host fails; the pixmap
    // must exist and have the depth of the format's windows.
    PixelBuffer *(*createPixmapBuffer)(uint64_t display, uint64_t pixmap, const PixelFormat *format);
    // The depth of a pixmap of the display; 0 when it does not exist.
    int32_t (*pixmapDepth)(uint64_t display, uint64_t pixmap);
    // In pixels. Outputs may be null; a null buffer writes nothing.
    void (*pixelBufferSize)(const PixelBuffer *buffer, int32_t *width, int32_t *height);
    // Null is allowed.
    void (*releasePixelBuffer)(PixelBuffer *buffer);

    // The view's current size, in its own units. Writes nothing for a view without a window, or with a destroyed one.
    void (*viewSize)(const View &view, int32_t *width, int32_t *height);
    // Title of the window that holds the view, in UTF-8. Empty for no view, no title, or a destroyed window.
    std::string (*viewTitle)(const View &view);
};

// The implementation that this build links.
extern const PlatformOperations operations;

} // namespace host::platform
