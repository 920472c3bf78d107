// What of a run counts as failing.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "tools/lab/device_result.h"

// The kinds, as --fail-on takes them:
//   start    no context, no frame, or an end of its own that is none of success
//   error    a GL error
//   refusal  a refused call that nothing made good later
//   lacking  something that the device lacks was used
//   picture  no picture, another size than the reference's, or more than differingShare of the pixels differ
[[nodiscard]] const std::vector<std::string> &faultKinds();

inline constexpr double differingShare = 0.01;

// Fills in the differences to the reference, which is one of the results, then faults and passes.
void judge(std::vector<DeviceResult> &results, const std::string &reference, const std::set<std::string> &failOn);
