// What a host must have to carry an ES version in strict mode.
#pragma once

#include <vector>

#include "capability/feature_sets.h"

namespace capability {

// The features that the set lacks, in the order of the check. Each includes the checks below it, of which those of ES
// 3.0 and of ES 2.0 stand side by side on the base.
[[nodiscard]] std::vector<Feature> missingBaseFeatures(const EsBaseFeatures &set);
[[nodiscard]] std::vector<Feature> missingEs20Features(const Es31Features &set);
[[nodiscard]] std::vector<Feature> missingEs30Features(const Es30Features &set);
[[nodiscard]] std::vector<Feature> missingEs31Features(const Es31Features &set);
[[nodiscard]] std::vector<Feature> missingEs32Features(const Es31Features &set);

} // namespace capability
