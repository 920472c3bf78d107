// Configs as programs of the desktop expect them: each with a host format of its own, and with the attributes that
// depend on the host.
#pragma once

#include <cstdint>
#include <vector>

#include "profiles/config.h"
#include "profiles/device_profile.h"

namespace egl {

// The configs of the profile. If it requests the host's only, those without an exact match on the host are left out;
// otherwise each gets the nearest format.
[[nodiscard]] std::vector<Config> makeDesktopConfigs(const DeviceProfile &profile, uint64_t nativeDisplay);

// Used for a null config: its contexts draw to surfaces of any config.
[[nodiscard]] Config makeConfiglessConfig(const Config &first, uint64_t nativeDisplay);

} // namespace egl
