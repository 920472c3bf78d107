// Queries of the host: each uses the bindings of the features "get" and "opengl".
// Describes the context that is current on the calling thread, and caches no result.
#pragma once

#include <cstdint>

#include "capability/extension_catalogue.h"
#include "capability/feature.h"
#include "capability/versions.h"

namespace capability {

template <Feature feature>
struct FeatureBinding;

// From a pair of bindings. A view without them cannot query, and assumes every capability. Valid as long as the library
// that the bindings were looked up in.
class HostGlView {
public:
    HostGlView() = default;
    HostGlView(const FeatureBinding<Feature::get> &get, const FeatureBinding<Feature::openGl> &);

    [[nodiscard]] bool canAsk() const { return m_canAsk; }
    // Null where the host has no such text.
    [[nodiscard]] const char *string(uint32_t name) const { return m_getString ? m_getString(name) : nullptr; }
    // From OpenGL 3.0 on the host lists its extensions one by one, if it has the function.
    [[nodiscard]] bool listsExtensions(GlVersion version) const { return version >= gl3_0 && m_getStringi; }
    [[nodiscard]] int32_t listedExtensionCount() const;
    // Only if the host lists them.
    [[nodiscard]] const char *listedExtension(int32_t index) const;

private:
    bool m_canAsk = false;
    const char *(*m_getString)(uint32_t name) = nullptr;
    const char *(*m_getStringi)(uint32_t name, uint32_t index) = nullptr;
    void (*m_getIntegerv)(uint32_t name, int32_t *value) = nullptr;
};

// The unknown version, which passes every test, if the view cannot query.
[[nodiscard]] GlVersion hostGlVersion(const HostGlView &view);

// If the host does not list its extensions, a name is found anywhere in the extension text, even as the beginning of a
// longer name.
[[nodiscard]] bool hostHasExtension(const HostGlView &view, const char *name);
[[nodiscard]] bool hostHasExtensionId(const HostGlView &view, HostExtension id);

} // namespace capability
