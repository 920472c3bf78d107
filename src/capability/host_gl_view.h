// What the host says about itself: every question goes through the bindings of the features "get" and "opengl".
// Speaks for the context that is current on the calling thread, and keeps nothing of the answers.
#pragma once

#include <cstdint>

#include "capability/extension_catalogue.h"
#include "capability/feature.h"
#include "capability/versions.h"

namespace capability {

template <Feature feature>
struct FeatureBinding;

// By a pair of bindings. A view without them cannot ask, and assumes everything. Good as long as the library that the
// bindings were looked up in.
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
    // Only where the host lists them.
    [[nodiscard]] const char *listedExtension(int32_t index) const;

private:
    bool m_canAsk = false;
    const char *(*m_getString)(uint32_t name) = nullptr;
    const char *(*m_getStringi)(uint32_t name, uint32_t index) = nullptr;
    void (*m_getIntegerv)(uint32_t name, int32_t *value) = nullptr;
};

// Unknown, which passes every test, for a view that cannot ask.
[[nodiscard]] GlVersion hostGlVersion(const HostGlView &view);

// Where the host does not list its extensions, a name counts as present wherever it stands in the extension text, be it
// the beginning of a longer name.
[[nodiscard]] bool hostHasExtension(const HostGlView &view, const char *name);
[[nodiscard]] bool hostHasExtensionId(const HostGlView &view, HostExtension id);

} // namespace capability
