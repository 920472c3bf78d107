// The device that the process presents: its EGL configs and the ES versions that contexts may have.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "capability/versions.h"
#include "profiles/config.h"

namespace egl {

struct DeviceProfile {
    std::set<Config> configs;                   // by id; a second config with an existing id is dropped
    std::string name;                           // the requested name; empty in defaultProfile
    std::set<capability::EsVersion> esVersions; // that contexts may have
    bool hasConfigsOfHostOnly = false;          // for desktop clients: configs that the host does not have are left out
};

// The profile without a device: one built-in config and every ES version. Never destroyed, since threads may use it
// while the process ends.
extern const DeviceProfile &defaultProfile;

// Compares configs and name; versions are ignored.
[[nodiscard]] bool isDefaultProfile(const DeviceProfile &profile);

// The minor number of the highest ES 3 version that contexts may have; nothing without ES 3. Without a device all
// versions are allowed.
[[nodiscard]] std::optional<int32_t> highestEs3Minor(const DeviceProfile &profile);

// Whether a context of this version may be created. Versions that ES never had are rejected under every profile, except
// those with the major version 1.
[[nodiscard]] bool isEsVersionAllowed(const DeviceProfile &profile, int32_t major, int32_t minor);

} // namespace egl
