// What a device tells its shaders of its limits.
#pragma once

#include "announcement/announcement.h"

// The source with the device's numbers in the place of the constants that tell them: the host's compiler has its own.
// What the profile does not say stays.
[[nodiscard]] std::string withConstantsOf(const Announcement &announced, std::string source);
