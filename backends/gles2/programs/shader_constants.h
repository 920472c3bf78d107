// The device's limits in shaders.
#pragma once

#include "announcement/announcement.h"

// The source with the constants for limits replaced by the device's values: the host's compiler has its own.
// Constants that the profile does not define are unchanged.
[[nodiscard]] std::string withConstantsOf(const Announcement &announced, std::string source);
