// The runs of a lab, and the files that it writes.
#pragma once

#include <vector>

#include "tools/lab/device_result.h"
#include "tools/lab/lab_options.h"

// Runs the program on each device, several at a time, with a line on standard error for each that is done; then judges
// and writes index.html, lab.json and junit.xml, and a directory a device. Ends early, with what there is until then,
// at a signal that ends programs; gives its number then, and 0 otherwise. Fails the command when the directory cannot
// be written.
[[nodiscard]] int runLab(const LabOptions &options, std::vector<DeviceResult> &results);
