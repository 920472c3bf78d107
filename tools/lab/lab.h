// The runs of a lab, and the files that it writes.
#pragma once

#include <vector>

#include "tools/lab/device_result.h"
#include "tools/lab/lab_options.h"

// Runs the program on each device, several at a time, with a line on standard error for each completed run; then
// evaluates the results and writes index.html, lab.json, junit.xml and a directory for each device. At a signal that
// ends programs it stops early with the results so far and returns the signal's number; otherwise it returns 0. Fails
// the command when the directory cannot be written.
[[nodiscard]] int runLab(const LabOptions &options, std::vector<DeviceResult> &results);
