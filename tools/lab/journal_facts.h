// What the journal of a run tells of it.
#pragma once

#include <string>

#include "tools/lab/device_result.h"

// Fills the fields of the journal; those of several processes are put together. Lines that a killed process left
// unfinished are passed over. Gives the file of the newest picture, or nothing.
[[nodiscard]] std::string readJournal(const std::string &path, DeviceResult &result);
