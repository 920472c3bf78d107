// The host functions that the library itself calls, from the features that they belong to. Created with a host context
// current. A function that the host lacks, or whose feature it lacks, is null.
#pragma once

#include <cstdint>

#include "capability/feature_binding.h"

namespace host {

struct EGL {
    // All null.
    EGL() = default;
    explicit EGL(const DynamicLibrary &library);

    // Whether a host context was current at the lookup.
    [[nodiscard]] bool hasHost() const { return m_hasHost; }

    capability::FeatureBinding<capability::Feature::fenceSync> fenceSync;
    capability::FeatureBinding<capability::Feature::get> get;
    capability::FeatureBinding<capability::Feature::openGl> openGl;
    capability::FeatureBinding<capability::Feature::textureUpload> textureUpload;
    capability::FeatureBinding<capability::Feature::textures> textures;

    using Sync = void *;
    uint32_t (*glClientWaitSync)(Sync sync, uint32_t flags, uint64_t timeoutNs) = nullptr;
    void (*glDeleteSync)(Sync sync) = nullptr;
    Sync (*glFenceSync)(uint32_t condition, uint32_t flags) = nullptr;
    void (*glGetSynciv)(Sync sync, uint32_t name, int32_t size, int32_t *length, int32_t *values) = nullptr;
    void (*glWaitSync)(Sync sync, uint32_t flags, uint64_t timeoutNs) = nullptr;
    uint32_t (*glGetError)() = nullptr;
    void (*glCopyTexImage2D)(uint32_t target, int32_t level, uint32_t internalFormat, int32_t x, int32_t y,
                             int32_t width, int32_t height, int32_t border) = nullptr;
    void (*glBindTexture)(uint32_t target, uint32_t texture) = nullptr;

    // Clears one pending error of the host.
    void sweepError() const {
        if (glGetError) glGetError();
    }

private:
    bool m_hasHost = false;
};

} // namespace host
