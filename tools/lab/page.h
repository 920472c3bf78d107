// The page of the lab: one self-contained HTML file, with its pictures inside.
#pragma once

#include <string>
#include <vector>

#include "tools/lab/device_result.h"
#include "tools/lab/lab_options.h"

[[nodiscard]] std::string resultsAsPage(const LabOptions &options, const std::vector<DeviceResult> &results);
