// Descriptions of the requirements of a missing feature.
#pragma once

#include <span>
#include <string>

#include "capability/feature.h"

namespace capability {

// Empty for an alternative without a condition.
[[nodiscard]] std::string describeAlternative(const FeatureAlternative &alternative);
// A line "OR" follows every alternative, even the last one.
[[nodiscard]] std::string describeAlternatives(std::span<const FeatureAlternative> alternatives);
// Only the first alternative of this variant; all of them for variant 0 and for an unknown one.
[[nodiscard]] std::string describeRequirements(std::span<const FeatureAlternative> alternatives, uint32_t variant);
[[nodiscard]] std::string describeFeatureFailure(const FeatureDescriptor &descriptor, uint32_t variant);

} // namespace capability
