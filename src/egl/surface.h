// The EGL side of a surface: a map of attributes around a host surface.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <memory>

#include "egl/egl_api.h"
#include "host/host_surface.h"
#include "profiles/config.h"

namespace egl {

// What of a config contexts and surfaces have to have in common.
using DrawableSizes = std::array<EGLint, 7>;
[[nodiscard]] DrawableSizes drawableSizes(const Config &config);

class Surface {
public:
    // Takes every pair of the list, whatever the attribute; a null list is an empty one. Pixmaps have no host surface.
    Surface(uint64_t handle, std::shared_ptr<glove::ISurface> hostSurface, const Config &config,
            const EGLint *attributes);

    // As eglQuerySurface answers: false, with value untouched, for an attribute that the surface does not have.
    [[nodiscard]] bool query(EGLint attribute, EGLint *value);
    // The stored value or 0; the size comes from the host at every call, and is 0 without a host surface.
    [[nodiscard]] EGLint attribute(EGLint attribute);
    // Shows the surface and begins a new frame of it.
    void swap();

    const uint64_t handle;
    const bool isSrgb;
    const DrawableSizes sizes;
    const std::shared_ptr<glove::ISurface> hostSurface;

    // Since the last swap.
    std::atomic<bool> damageRegionSet = false;
    std::atomic<bool> bufferAgeQueried = false;

private:
    std::map<EGLint, EGLint> m_attributes; // constant after construction
};

} // namespace egl
