// Configs as programs of the desktop expect them: each with a host format of its own, and with what the host alone can
// tell of it.
#pragma once

#include <cstdint>
#include <vector>

#include "profiles/config.h"
#include "profiles/device_profile.h"

namespace egl {

// The configs of the profile. Where that asks for the host's only, those that the host does not have just so are left
// out; otherwise each gets the nearest format.
[[nodiscard]] std::vector<Config> makeDesktopConfigs(const DeviceProfile &profile, uint64_t nativeDisplay);

// Stands for a null config: its contexts draw to surfaces of any config.
[[nodiscard]] Config makeConfiglessConfig(const Config &first, uint64_t nativeDisplay);

} // namespace egl
