// A device profile in readable form on standard output.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "profiles/device_profile.h"

// "1.x" or "2.0".
[[nodiscard]] const char *versionName(capability::EsVersion version);

// "1.x, 2.0", or "none".
[[nodiscard]] std::string versionsText(const egl::DeviceProfile &profile);

// The number of configs, then one row per config.
[[nodiscard]] std::string configTable(const std::vector<egl::Config> &configs);

// Identity, configs as a table in the values that programs see, then extensions and limits of each es block.
// text is the profile's own and parses.
void printProfile(const egl::DeviceProfile &profile, std::string_view text);
