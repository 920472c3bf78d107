#include "capability/feature.h"

#include <cstddef>

namespace capability {

namespace {

using Descriptors = std::vector<FeatureDescriptor>;

Descriptors makeDescriptors() {
    Descriptors descriptors{
#define FEATURE(identifier, name) {name, {}},
#define ALTERNATIVE(...)
#include "capability/data/features.def"
#undef ALTERNATIVE
#undef FEATURE
    };
#define FEATURE(identifier, name)
#define ALTERNATIVE(feature, variant, version, ...)                                                                    \
    descriptors[static_cast<size_t>(Feature::feature)].alternatives.push_back(                                         \
        {variant, parseGlVersion(version), {__VA_ARGS__}});
#include "capability/data/features.def"
#undef ALTERNATIVE
#undef FEATURE
    return descriptors;
}

} // namespace

const FeatureDescriptor &descriptorOf(Feature feature) {
    // Never destroyed: applications may create contexts in their exit handlers.
    static const auto &descriptors = *new Descriptors(makeDescriptors());
    return descriptors[static_cast<size_t>(feature)];
}

} // namespace capability
