// Pixel buffers: a record of the request, and the GLX drawables created for the contexts that attach it, which are
// pbuffers, or GLX pixmaps for a pixmap of the application. Those are destroyed when the owner has released the record
// and no context has it attached any more. Any thread.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "host/platform/operations.h"
#include "host/platform/x11/connection.h"

namespace host::platform {

namespace x11 {

class Pbuffers {
public:
    // own: the config of every drawable; null for that of the attaching context. pixmap: None for pbuffers.
    Pbuffers(int32_t width, int32_t height, const FbConfig *own, Pixmap pixmap = None)
        : pixmap(pixmap), m_width(width), m_height(height), m_own(own) {}
    Pbuffers(const Pbuffers &) = delete;
    Pbuffers &operator=(const Pbuffers &) = delete;
    ~Pbuffers();

    // Created at the first call for the config. None when the host fails.
    [[nodiscard]] GLXDrawable bufferFor(Connection &connection, const FbConfig &contextConfig);

    const Pixmap pixmap;

private:
    const int32_t m_width;
    const int32_t m_height;
    const FbConfig *const m_own;
    std::mutex m_mutex;
    std::map<std::pair<Connection *, const FbConfig *>, GLXDrawable> m_buffers;
};

PixelBuffer *createPixelBuffer(uint32_t target, uint32_t internalFormat, int32_t maxMipLevel, int32_t width,
                               int32_t height, const PixelFormat *format);
PixelBuffer *createPixmapBuffer(uint64_t display, uint64_t pixmap, const PixelFormat *format);
int32_t pixmapDepth(uint64_t display, uint64_t pixmap);
void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height);
void releasePixelBuffer(PixelBuffer *buffer);

} // namespace x11

// GLX buffers have neither a target nor a format nor levels, so only the size is used.
struct PixelBuffer {
    uint32_t target = 0;
    uint32_t internalFormat = 0;
    int32_t maxMipLevel = 0;
    int32_t width = 0;
    int32_t height = 0;
    std::shared_ptr<x11::Pbuffers> pbuffers;
};

} // namespace host::platform
