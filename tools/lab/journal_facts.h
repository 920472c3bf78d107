// Extracts the results of a run from its journal.
#pragma once

#include <string>

#include "tools/lab/device_result.h"

// Fills the fields of the journal; those of several processes are merged. Incomplete lines of a killed process are
// skipped. Returns the file of the newest picture, or nothing.
[[nodiscard]] std::string readJournal(const std::string &path, DeviceResult &result);
