// A shortfall in words, for whoever has to explain a missing feature.
#pragma once

#include <span>
#include <string>

#include "capability/feature.h"

namespace capability {

// Empty for an alternative without any condition.
[[nodiscard]] std::string describeAlternative(const FeatureAlternative &alternative);
// A line "OR" stands behind every alternative, the last one too.
[[nodiscard]] std::string describeAlternatives(std::span<const FeatureAlternative> alternatives);
// The first alternative of this variant alone; all of them for variant 0 and for one that there is not.
[[nodiscard]] std::string describeRequirements(std::span<const FeatureAlternative> alternatives, uint32_t variant);
[[nodiscard]] std::string describeFeatureFailure(const FeatureDescriptor &descriptor, uint32_t variant);

} // namespace capability
