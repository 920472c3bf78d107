// Which device the process pretends to be: its EGL configs and the ES versions that contexts may have.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "capability/versions.h"
#include "profiles/config.h"

namespace egl {

struct DeviceProfile {
    std::set<Config> configs;                   // by id; of two with one id the first stays
    std::string name;                           // the name it was asked for by; empty in defaultProfile
    std::set<capability::EsVersion> esVersions; // that contexts may have
    bool hasConfigsOfHostOnly = false;          // for desktop clients: configs that the host does not have are left out
};

// No device: one built-in config and every ES version. Never destroyed, since threads may ask while the process ends.
extern const DeviceProfile &defaultProfile;

// Compares configs and name; versions do not count.
[[nodiscard]] bool isDefaultProfile(const DeviceProfile &profile);

// The highest version of ES 3 that contexts may have: its minor number, or nothing. Every one without a device.
[[nodiscard]] std::optional<int32_t> highestEs3Minor(const DeviceProfile &profile);

// Whether a context of this version may be made. Versions that ES never had are refused under every profile, but for
// those with the major version 1.
[[nodiscard]] bool isEsVersionAllowed(const DeviceProfile &profile, int32_t major, int32_t minor);

} // namespace egl
