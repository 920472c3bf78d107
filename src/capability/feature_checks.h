// What a host must have to carry an ES version in strict mode.
#pragma once

#include <vector>

#include "capability/feature_sets.h"

namespace capability {

[[nodiscard]] bool checkBaseFeatures(const EsBaseFeatures &set);
// Both include the checks below them.
[[nodiscard]] bool checkEs30Features(const Es30Features &set);
[[nodiscard]] bool checkEs31Features(const Es31Features &set);

// The features that make the check fail, in its order.
[[nodiscard]] std::vector<Feature> missingBaseFeatures(const EsBaseFeatures &set);
[[nodiscard]] std::vector<Feature> missingEs30Features(const Es30Features &set);
[[nodiscard]] std::vector<Feature> missingEs31Features(const Es31Features &set);

} // namespace capability
