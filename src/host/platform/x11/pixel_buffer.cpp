#include "host/platform/x11/pixel_buffer.h"

#include <optional>

#include "host/platform/x11/glx.h"
#include "host/platform/x11/pixel_format.h"
#include "host/platform/x11/x_calls.h"

namespace host::platform::x11 {

namespace {

struct PixmapFacts {
    int32_t width = 0;
    int32_t height = 0;
    int32_t depth = 0;
};

// Nothing when the drawable does not exist or is a window.
std::optional<PixmapFacts> findPixmap(uint64_t displayWord, Pixmap pixmap) {
    auto *connection = Connection::open(displayWord);
    if (!connection || connection->isLost() || !pixmap) return std::nullopt;
    // The request that creates the pixmap may still be in the application's output buffer.
    flushApplication(displayWord);
    Display *display = connection->display();
    const std::lock_guard lock(calls::trapMutex());
    const ErrorTrap trap(display);
    XWindowAttributes window;
    if (XGetWindowAttributes(display, pixmap, &window)) return std::nullopt;
    Window root = None;
    int x = 0, y = 0;
    unsigned width = 0, height = 0, border = 0, depth = 0;
    if (!XGetGeometry(display, pixmap, &root, &x, &y, &width, &height, &border, &depth)) return std::nullopt;
    return PixmapFacts{static_cast<int32_t>(width), static_cast<int32_t>(height), static_cast<int32_t>(depth)};
}

} // namespace

Pbuffers::~Pbuffers() {
    const auto destroy = pixmap ? glx().destroyPixmap : glx().destroyPbuffer;
    for (const auto &[key, buffer] : m_buffers) {
        if (!key.first->isLost()) destroy(key.first->display(), buffer);
    }
}

GLXDrawable Pbuffers::bufferFor(Connection &connection, const FbConfig &contextConfig) {
    const FbConfig &config = m_own ? *m_own : contextConfig;
    const std::lock_guard lock(m_mutex);
    const std::pair key(&connection, &config);
    if (const auto known = m_buffers.find(key); known != m_buffers.end()) return known->second;
    const int attributes[] = {
        GLX_PBUFFER_WIDTH, m_width, GLX_PBUFFER_HEIGHT, m_height, GLX_PRESERVED_CONTENTS, True, 0};
    Display *display = connection.display();
    const GLXDrawable buffer = pixmap ? calls::createPixmap(display, config.handle, pixmap)
                                      : calls::createPbuffer(display, config.handle, attributes);
    if (buffer) m_buffers[key] = buffer;
    return buffer;
}

PixelBuffer *createPixelBuffer(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                               int32_t height, const PixelFormat *format) {
    if (width < 1 || height < 1) return nullptr;
    return new PixelBuffer{target,      internalFormat,
                           maxMipLevel, width,
                           height,      std::make_shared<Pbuffers>(width, height, format ? &format->config : nullptr)};
}

PixelBuffer *createPixmapBuffer(uint64_t display, uint64_t pixmap, const PixelFormat *format) {
    const auto facts = findPixmap(display, pixmap);
    if (!format || !facts || facts->depth != format->config.visual.depth) return nullptr;
    return new PixelBuffer{
        .width = facts->width,
        .height = facts->height,
        .pbuffers = std::make_shared<Pbuffers>(facts->width, facts->height, &format->config, pixmap),
    };
}

int32_t pixmapDepth(uint64_t display, uint64_t pixmap) {
    const auto facts = findPixmap(display, pixmap);
    return facts ? facts->depth : 0;
}

void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height) {
    if (!buffer) return;
    if (width) *width = buffer->width;
    if (height) *height = buffer->height;
}

void releasePixelBuffer(PixelBuffer *buffer) {
    delete buffer;
}

} // namespace host::platform::x11
