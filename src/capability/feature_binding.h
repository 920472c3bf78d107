// A feature on one host: which alternative was selected, and the host functions that go with it.
#pragma once

#include <vector>

#include "capability/entry_points.h"
#include "capability/feature.h"
#include "capability/host_gl_view.h"
#include "foundation/dynamic_library.h"

namespace capability {

constexpr int32_t noVariant = -1;

// What a binding holds, whatever its feature.
struct Binding {
    int32_t variant = noVariant;
    // Only of texture storage: whether the last three functions may be called.
    bool hasDirectStorage = false;
    // In the order of the table; a null one where the host lacks the function, which does not make the feature missing.
    // Empty while nothing was looked up.
    std::vector<void *> functions;
};

// Of this feature and no other.
template <Feature feature>
struct FeatureBinding : Binding {
    // The function of this name in the feature's first family, whatever family was selected. Null when nothing was
    // looked up.
    template <typename Function>
    [[nodiscard]] Function function(EntryPoint<feature> entry) const {
        return reinterpret_cast<Function>(entry.place() < functions.size() ? functions[entry.place()] : nullptr);
    }
};

// The one test of a feature everywhere: a variant was selected, or none is needed.
[[nodiscard]] bool isAvailable(Feature feature, const Binding &binding);

template <Feature feature>
[[nodiscard]] bool featureAvailable(const FeatureBinding<feature> &binding) {
    return isAvailable(feature, binding);
}

// Selects the variant and looks the functions up; those of an unknown variant stay as they are. Tells whether it looked
// anything up, or, for a feature without functions, whether it is available.
bool bind(Feature feature, Binding &binding, const HostGlView &view, const DynamicLibrary &library);

template <Feature feature>
bool bindFeature(FeatureBinding<feature> &binding, const HostGlView &view, const DynamicLibrary &library) {
    return bind(feature, binding, view, library);
}

} // namespace capability
