// One run of the program on one device: with an X server of its own, a journal, a log and a time limit.
#pragma once

#include <atomic>
#include <string>

#include "tools/lab/device_result.h"
#include "tools/lab/lab_options.h"

// A name for files: letters, digits and lines for whatever the device's has besides.
[[nodiscard]] std::string fileNameOf(const std::string &device);

// Leaves "journal" and "log" in the directory, which is there. isStopped: set when the lab is to end; the run then ends
// soon, and its result is of what was done until then. Threads may run devices beside one another.
[[nodiscard]] DeviceResult runOnDevice(const LabOptions &options, const std::string &device,
                                       const std::string &directory, const std::atomic<bool> &isStopped);
