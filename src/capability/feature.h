// A feature is a named host capability that can be satisfied in one or more alternative ways. All of them are in
// data/features.def; the table is constant and may be read from any thread.
#pragma once

#include <cstdint>
#include <vector>

#include "capability/versions.h"

namespace capability {

enum class Feature : uint8_t {
#define FEATURE(identifier, name) identifier,
#define ALTERNATIVE(...)
#include "capability/data/features.def"
#undef ALTERNATIVE
#undef FEATURE
};

struct FeatureAlternative {
    uint32_t variant; // a label of the family of names; neither unique in a feature nor an index
    GlVersion minVersion;
    std::vector<const char *> extensions; // all of them are required
};

struct FeatureDescriptor {
    const char *name;
    std::vector<FeatureAlternative> alternatives; // in the order of preference; none makes the feature mandatory
};

[[nodiscard]] const FeatureDescriptor &descriptorOf(Feature feature);

} // namespace capability
