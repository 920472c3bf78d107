// One run of the program on one device: with an X server of its own, a journal, a log and a time limit.
#pragma once

#include <atomic>
#include <string>

#include "tools/lab/device_result.h"
#include "tools/lab/lab_options.h"

// A file name: the device's letters, digits and dots, with "-" for all other characters.
[[nodiscard]] std::string fileNameOf(const std::string &device);

// Writes "journal" and "log" to the existing directory. isStopped: set to end the lab; the run then ends soon, and its
// result covers the time until then. Threads may run devices concurrently.
[[nodiscard]] DeviceResult runOnDevice(const LabOptions &options, const std::string &device,
                                       const std::string &directory, const std::atomic<bool> &isStopped);
