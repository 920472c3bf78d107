#include "profiles/device_profile.h"

namespace egl {

namespace {

std::optional<EsVersion> findVersion(int32_t major, int32_t minor) {
    if (major == 1) return ES1;
    if (major == 2 && minor == 0) return ES2;
    if (major == 3 && minor == 0) return ES3;
    if (major == 3 && minor == 1) return ES31;
    if (major == 3 && minor == 2) return ES32;
    return std::nullopt;
}

} // namespace

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
    const auto version = findVersion(major, minor);
    return version && (isDefaultProfile(profile) || profile.esVersions.contains(*version));
}

} // namespace egl
