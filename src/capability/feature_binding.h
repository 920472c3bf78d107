// A feature on one host: the selected alternative, and its host functions.
#pragma once

#include <vector>

#include "capability/entry_points.h"
#include "capability/feature.h"
#include "capability/host_gl_view.h"
#include "foundation/dynamic_library.h"

namespace capability {

constexpr int32_t noVariant = -1;

// The contents of a binding, whatever its feature.
struct Binding {
    int32_t variant = noVariant;
    // For texture storage only: whether the last three functions may be called.
    bool hasDirectStorage = false;
    // In the order of the table; null where the host lacks the function, which does not make the feature missing.
    // Empty before the lookup.
    std::vector<void *> functions;
};

// For this feature only.
template <Feature feature>
struct FeatureBinding : Binding {
    // The function of this name in the feature's first family, whatever family was selected. Null before the
    // lookup.
    template <typename Function>
    [[nodiscard]] Function function(EntryPoint<feature> entry) const {
        return reinterpret_cast<Function>(entry.place() < functions.size() ? functions[entry.place()] : nullptr);
    }
};

// Whether a variant was selected, or none is required.
[[nodiscard]] bool isAvailable(Feature feature, const Binding &binding);

template <Feature feature>
[[nodiscard]] bool featureAvailable(const FeatureBinding<feature> &binding) {
    return isAvailable(feature, binding);
}

// Selects the variant and looks the functions up. Functions of a variant without a family are not written. Returns
// whether it looked anything up, or, for a feature without functions, whether it is available.
bool bind(Feature feature, Binding &binding, const HostGlView &view, const DynamicLibrary &library);

template <Feature feature>
bool bindFeature(FeatureBinding<feature> &binding, const HostGlView &view, const DynamicLibrary &library) {
    return bind(feature, binding, view, library);
}

} // namespace capability
