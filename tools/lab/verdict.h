// Decides whether a run has failed.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "tools/lab/device_result.h"

// The kinds, as --fail-on names them:
//   start    no context, no frame, or an unsuccessful exit of the program
//   error    a GL error
//   refusal  a failed call without a later successful one
//   lacking  the program used a feature that the device lacks
//   picture  no picture, another size than the reference's, or more than differingShare of the pixels differ
[[nodiscard]] const std::vector<std::string> &faultKinds();

inline constexpr double differingShare = 0.01;

// Computes the differences from the reference, which is one of the results, then faults and passes.
void judge(std::vector<DeviceResult> &results, const std::string &reference, const std::set<std::string> &failOn);
