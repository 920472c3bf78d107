#include "profiles/device_profile.h"

namespace egl {

const DeviceProfile &defaultProfile = *new DeviceProfile;

bool isDefaultProfile(const DeviceProfile &profile) {
    return profile.configs == defaultProfile.configs && profile.name == defaultProfile.name;
}

std::optional<int32_t> highestEs3Minor(const DeviceProfile &profile) {
    for (int32_t minor = 2; minor >= 0; --minor) {
        if (isEsVersionAllowed(profile, 3, minor)) return minor;
    }
    return std::nullopt;
}

bool isEsVersionAllowed(const DeviceProfile &profile, int32_t major, int32_t minor) {
    if (major == 2 && minor != 0) return false;
    const auto version = capability::esVersionFromContext(major, minor);
    return version && (isDefaultProfile(profile) || profile.esVersions.contains(version));
}

} // namespace egl
