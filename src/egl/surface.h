// The EGL side of a surface: an attribute map and a host surface.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "egl/egl_api.h"
#include "host/host_surface.h"
#include "profiles/config.h"

namespace egl {

// The config sizes that must be equal for a context and a surface to be compatible.
using DrawableSizes = std::array<EGLint, 7>;
[[nodiscard]] DrawableSizes drawableSizes(const Config &config);
// The config's own format for surfaces; null where surfaces use the format of the context that draws to them.
[[nodiscard]] const host::platform::PixelFormat *surfaceFormat(const Config &config);

class Surface {
public:
    // Stores every pair of the list, whatever the attribute; a null list is an empty one. Pixmaps have no host surface.
    Surface(uint64_t handle, std::shared_ptr<glove::ISurface> hostSurface, const Config &config,
            const EGLint *attributes);

    // Returns the error of eglQuerySurface; value is written on success only.
    [[nodiscard]] EGLint query(EGLint attribute, EGLint *value);
    // The stored value or 0; the size is queried from the host at every call, and is 0 without a host surface.
    [[nodiscard]] EGLint attribute(EGLint attribute);
    // The value in the attribute list, or the given default without one.
    [[nodiscard]] EGLint storedOr(EGLint attribute, EGLint otherwise) const;
    // 1 if the last frame is still in the back buffer of a surface that can preserve it, 0 if its contents are unknown.
    [[nodiscard]] EGLint age();
    // Swaps the buffers and begins a new frame.
    void swap();

    const uint64_t handle;
    const bool isSrgb;
    const DrawableSizes sizes;
    const host::platform::PixelFormat *const format;
    const bool canPreserve; // the contents survive a swap, if the application requests that
    const std::shared_ptr<glove::ISurface> hostSurface;

    // Since the last swap.
    std::atomic<bool> damageRegionSet = false;
    std::atomic<bool> bufferAgeQueried = false;

    // Set by eglSurfaceAttrib for desktop clients.
    std::atomic<EGLint> mipmapLevel = 0;
    std::atomic<EGLint> multisampleResolve = EGL_MULTISAMPLE_RESOLVE_DEFAULT;
    std::atomic<EGLint> swapBehavior = EGL_BUFFER_DESTROYED;

private:
    using Size = std::pair<int32_t, int32_t>;
    [[nodiscard]] Size size() const;

    std::map<EGLint, EGLint> m_attributes; // constant after construction
    std::mutex m_frameMutex;
    std::optional<Size> m_frameSize; // of the last frame; only for surfaces whose age was queried
    bool m_countsFrames = false;
};

} // namespace egl
