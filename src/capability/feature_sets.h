// The bindings that an OpenGL ES level needs, made for the host context that is current on the calling thread. A set
// belongs to that thread and describes that context; nothing in it is ever refreshed. The library must outlive it.
// Each level adds its bindings after those of the level below; ES 3.2 has no set of its own and uses that of ES 3.1.
#pragma once

#include <vector>

#include "capability/feature_binding.h"

namespace capability {

#define FIELD(feature) FeatureBinding<Feature::feature> feature;
#define BIND(feature)

struct EsBaseFeatures {
    explicit EsBaseFeatures(const DynamicLibrary &library);

#include "capability/data/es_base_features.def"
    // 0 until they are queried.
    GlVersion glVersion = noGlVersion;
    GlslVersion glslVersion = noGlslVersion;

    [[nodiscard]] HostGlView view() const {
        return {get, openGl};
    }
};

struct Es20Features : EsBaseFeatures {
    explicit Es20Features(const DynamicLibrary &library);

#include "capability/data/es20_features.def"
};

struct Es30Features : Es20Features {
    explicit Es30Features(const DynamicLibrary &library);

#include "capability/data/es30_features.def"
};

struct Es31Features : Es30Features {
    explicit Es31Features(const DynamicLibrary &library);

#include "capability/data/es31_features.def"
};

#undef BIND
#undef FIELD

// Queried from the host once; a host that returns no text is queried again.
[[nodiscard]] GlVersion cachedGlVersion(EsBaseFeatures &set);
[[nodiscard]] GlslVersion cachedGlslVersion(EsBaseFeatures &set);
// The host's extensions in its own order, with repeats. Names that are not in the catalogue are left out.
[[nodiscard]] std::vector<HostExtension> hostExtensionIds(EsBaseFeatures &set);

} // namespace capability
