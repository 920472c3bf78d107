#include "host/platform/x11/pixel_buffer.h"

#include "host/platform/x11/pixel_format.h"
#include "host/platform/x11/x_calls.h"

namespace host::platform::x11 {

Pbuffers::~Pbuffers() {
    for (const auto &[key, buffer] : m_buffers) {
        if (!key.first->isLost()) glXDestroyPbuffer(key.first->display(), buffer);
    }
}

GLXPbuffer Pbuffers::bufferFor(Connection &connection, const FbConfig &contextConfig) {
    const FbConfig &config = m_own ? *m_own : contextConfig;
    const std::lock_guard lock(m_mutex);
    const std::pair key(&connection, &config);
    if (const auto known = m_buffers.find(key); known != m_buffers.end()) return known->second;
    const int attributes[] = {
        GLX_PBUFFER_WIDTH, m_width, GLX_PBUFFER_HEIGHT, m_height, GLX_PRESERVED_CONTENTS, True, 0};
    const GLXPbuffer buffer = calls::createPbuffer(connection.display(), config.handle, attributes);
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

void pixelBufferSize(const PixelBuffer *buffer, int32_t *width, int32_t *height) {
    if (!buffer) return;
    if (width) *width = buffer->width;
    if (height) *height = buffer->height;
}

void releasePixelBuffer(PixelBuffer *buffer) {
    delete buffer;
}

} // namespace host::platform::x11
