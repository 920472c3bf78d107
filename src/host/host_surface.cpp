#include "host/host_surface.h"

#include <EGL/egl.h>

#include "foundation/attribute_list.h"
#include "foundation/gl_types.h"
#include "host/host_context.h"

namespace {

using host::platform::NativeObject;
using host::platform::operations;
using host::platform::PixelBuffer;

// A context without a view equals a surface without a native object, and is flushed.
bool isViewOf(const host::platform::ContextContainer *container, const NativeObject &native) {
    if (native.isPixelBuffer()) return false; // a pixel buffer is never a view
    // Only the window is compared: two display values may refer to the same window.
    return operations.view(container).window == native.view.window;
}

// Flushes the context that the thread last made current, if the object is its view.
void flushIfBound(const NativeObject &native) {
    const auto context = host::lockCurrentHostContext();
    if (context && isViewOf(context->container(), native)) operations.flushBuffer(context->container());
}

// The two texture attributes are swapped: the texture target selects the colour format, and the texture format the
// target.
uint32_t bufferTarget(int32_t textureTarget) {
    switch (textureTarget) {
    case EGL_NO_TEXTURE:
    case EGL_TEXTURE_RGBA:
        return GL_RGBA;
    case EGL_TEXTURE_RGB:
        return GL_RGB;
    default:
        return static_cast<uint32_t>(textureTarget);
    }
}

uint32_t bufferFormat(int32_t textureFormat) {
    const bool isPlain = textureFormat == EGL_NO_TEXTURE || textureFormat == EGL_TEXTURE_2D;
    return isPlain ? GL_TEXTURE_2D : static_cast<uint32_t>(textureFormat);
}

struct Size {
    int32_t width = 0;
    int32_t height = 0;
};

Size sizeOf(const host::platform::View &view) {
    Size size;
    operations.viewSize(view, &size.width, &size.height);
    return size;
}

Size sizeOf(const PixelBuffer *buffer) {
    Size size;
    operations.pixelBufferSize(buffer, &size.width, &size.height);
    return size;
}

} // namespace

namespace glove {

int32_t WindowSurface::width() const {
    return sizeOf(m_view).width;
}

int32_t WindowSurface::height() const {
    return sizeOf(m_view).height;
}

std::string WindowSurface::title() const {
    return operations.viewTitle(m_view);
}

void WindowSurface::swapBuffers() {
    flushIfBound(nativeHandle());
}

PBufferSurface::~PBufferSurface() {
    operations.releasePixelBuffer(m_buffer);
}

int32_t PBufferSurface::width() const {
    return sizeOf(m_buffer).width;
}

int32_t PBufferSurface::height() const {
    return sizeOf(m_buffer).height;
}

void PBufferSurface::swapBuffers() {
    flushIfBound(nativeHandle());
}

PixmapSurface::~PixmapSurface() {
    operations.releasePixelBuffer(m_buffer);
}

int32_t PixmapSurface::width() const {
    return sizeOf(m_buffer).width;
}

int32_t PixmapSurface::height() const {
    return sizeOf(m_buffer).height;
}

void PixmapSurface::swapBuffers() {
    const auto context = host::lockCurrentHostContext();
    if (context) operations.flushBuffer(context->container());
}

} // namespace glove

namespace host {

PBufferRequest readPBufferRequest(const int32_t *attributes) {
    PBufferRequest request;
    for (const auto &[name, value] : AttributeList(attributes)) {
        switch (name) {
        case EGL_WIDTH:
            request.width = value;
            break;
        case EGL_HEIGHT:
            request.height = value;
            break;
        case EGL_MIPMAP_LEVEL:
            request.maxMipLevel = value;
            break;
        case EGL_TEXTURE_TARGET:
            request.target = bufferTarget(value);
            break;
        case EGL_TEXTURE_FORMAT:
            request.internalFormat = bufferFormat(value);
            break;
        default:
            break;
        }
    }
    return request;
}

std::shared_ptr<glove::ISurface> createHostWindowSurface(uint64_t display, uint64_t nativeWindow,
                                                         const platform::PixelFormat *format) {
    return std::make_shared<glove::WindowSurface>(platform::View{display, nativeWindow, format});
}

bool isHostWindow(const platform::View &view) {
    int32_t width = -1;
    operations.viewSize(view, &width, nullptr);
    return width >= 0;
}

void flushApplication(uint64_t display) {
    operations.flushApplication(display);
}

std::shared_ptr<glove::ISurface> createHostPBufferSurface(const int32_t *attributes,
                                                          const platform::PixelFormat *format) {
    const auto request = readPBufferRequest(attributes);
    return std::make_shared<glove::PBufferSurface>(operations.createPixelBuffer(
        request.target, request.internalFormat, request.maxMipLevel, request.width, request.height, format));
}

std::shared_ptr<glove::ISurface> createHostPixmapSurface() {
    return nullptr;
}

std::shared_ptr<glove::ISurface> createHostPixmapSurface(uint64_t display, uint64_t pixmap,
                                                         const platform::PixelFormat *format) {
    auto *buffer = operations.createPixmapBuffer(display, pixmap, format);
    return buffer ? std::make_shared<glove::PixmapSurface>(buffer) : nullptr;
}

PixmapFit pixmapFit(uint64_t display, uint64_t pixmap, const platform::PixelFormat *format) {
    const int32_t depth = operations.pixmapDepth(display, pixmap);
    if (!depth) return PixmapFit::none;
    const bool fits = format && operations.pixelFormatValue(format, platform::VisualDepth) == depth;
    return fits ? PixmapFit::fits : PixmapFit::otherDepth;
}

bool copyToPixmap(uint64_t display, uint64_t pixmap, const platform::PixelFormat *format) {
    const auto context = lockCurrentHostContext();
    auto *buffer = context ? operations.createPixmapBuffer(display, pixmap, format) : nullptr;
    if (!buffer) return false;
    const bool isCopied = operations.copyToPixmap(context->container(), buffer);
    operations.releasePixelBuffer(buffer);
    return isCopied;
}

} // namespace host
