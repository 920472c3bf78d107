// The results as JSON: lab.json, and the data of the page.
#pragma once

#include <vector>

#include "tools/command/json.h"
#include "tools/lab/device_result.h"
#include "tools/lab/lab_options.h"

// Pictures are given as paths below the directory of the lab.
[[nodiscard]] Json resultsAsJson(const LabOptions &options, const std::vector<DeviceResult> &results);

// For CI: one test case per device.
[[nodiscard]] std::string resultsAsJunit(const LabOptions &options, const std::vector<DeviceResult> &results);
