// Host surfaces: the host side of EGL surfaces. They return size and title, flush, and name the native object that a
// context is bound to. Pixmaps have one for desktop clients only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/platform/operations.h"

namespace glove {

// No virtual destructor: the shared pointer that holds a surface destroys the concrete type.
class ISurface {
public:
    // In pixels, queried at every call. 0 where the host does not report it.
    virtual int32_t width() const = 0;
    virtual int32_t height() const = 0;
    virtual std::string title() const = 0;
    // Flushes the calling thread's current host context if this surface is its view; otherwise does nothing.
    virtual void swapBuffers() = 0;
    virtual int32_t isPBuffer() const = 0;
    virtual bool isPixmap() const { return false; }
    virtual host::platform::NativeObject nativeHandle() const = 0;

protected:
    ~ISurface() = default;
};

class WindowSurface final : public ISurface {
public:
    explicit WindowSurface(const host::platform::View &view) : m_view(view) {}
    WindowSurface(const WindowSurface &) = delete;
    WindowSurface &operator=(const WindowSurface &) = delete;

    int32_t width() const override;
    int32_t height() const override;
    std::string title() const override;
    void swapBuffers() override;
    int32_t isPBuffer() const override { return 0; }
    host::platform::NativeObject nativeHandle() const override { return {m_view, nullptr}; }

private:
    host::platform::View m_view; // the application owns the window
};

class PBufferSurface final : public ISurface {
public:
    // Takes ownership of the buffer, which may be null.
    explicit PBufferSurface(host::platform::PixelBuffer *buffer) : m_buffer(buffer) {}
    PBufferSurface(const PBufferSurface &) = delete;
    PBufferSurface &operator=(const PBufferSurface &) = delete;
    ~PBufferSurface();

    int32_t width() const override;
    int32_t height() const override;
    std::string title() const override { return "pbuffer"; }
    void swapBuffers() override;
    int32_t isPBuffer() const override { return 1; }
    host::platform::NativeObject nativeHandle() const override { return {{}, m_buffer}; }

private:
    host::platform::PixelBuffer *m_buffer;
};

// Each swapBuffers copies what was drawn to the pixmap.
class PixmapSurface final : public ISurface {
public:
    // Takes ownership of the buffer.
    explicit PixmapSurface(host::platform::PixelBuffer *buffer) : m_buffer(buffer) {}
    PixmapSurface(const PixmapSurface &) = delete;
    PixmapSurface &operator=(const PixmapSurface &) = delete;
    ~PixmapSurface();

    int32_t width() const override;
    int32_t height() const override;
    std::string title() const override { return "pixmap"; }
    void swapBuffers() override;
    int32_t isPBuffer() const override { return 0; }
    bool isPixmap() const override { return true; }
    host::platform::NativeObject nativeHandle() const override { return {{}, m_buffer}; }

private:
    host::platform::PixelBuffer *m_buffer;
};

} // namespace glove

namespace host {

// The values of a pixel buffer, from an EGL attribute list.
struct PBufferRequest {
    uint32_t target = 0;
    uint32_t internalFormat = 0;
    int32_t width = 0;
    int32_t height = 0;
    int32_t maxMipLevel = 0;
};

// Reads the five relevant attributes and ignores all others. A null list is an empty one.
[[nodiscard]] PBufferRequest readPBufferRequest(const int32_t *attributes);

// format: the surface's own; null for that of the context that draws to it.
[[nodiscard]] std::shared_ptr<glove::ISurface> createHostWindowSurface(uint64_t display, uint64_t nativeWindow,
                                                                       const platform::PixelFormat *format = nullptr);
// Whether the host reports the size of such a window.
[[nodiscard]] bool isHostWindow(const platform::View &view);
// Flushes the requests of the application's own connection to the host: programs map a window and rely on the swap of
// a driver that uses their connection.
void flushApplication(uint64_t display);
// The buffer inside may be null when the host rejects the values.
[[nodiscard]] std::shared_ptr<glove::ISurface> createHostPBufferSurface(const int32_t *attributes,
                                                                        const platform::PixelFormat *format = nullptr);
// Always null: devices have no host object for pixmaps.
[[nodiscard]] std::shared_ptr<glove::ISurface> createHostPixmapSurface();
// For desktop clients; null when the host rejects the pixmap.
[[nodiscard]] std::shared_ptr<glove::ISurface> createHostPixmapSurface(uint64_t display, uint64_t pixmap,
                                                                       const platform::PixelFormat *format);
// Whether the pixmap exists and surfaces of the format can be created for it.
enum class PixmapFit { none, otherDepth, fits };
[[nodiscard]] PixmapFit pixmapFit(uint64_t display, uint64_t pixmap, const platform::PixelFormat *format);
// Copies the rendering of the calling thread's host context to its surface to the pixmap. False when the host fails.
[[nodiscard]] bool copyToPixmap(uint64_t display, uint64_t pixmap, const platform::PixelFormat *format);

} // namespace host
