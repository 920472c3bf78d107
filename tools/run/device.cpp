#include "tools/run/device.h"

#include <filesystem>
#include <iostream>

#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"

namespace fs = std::filesystem;

namespace {

// Whether the user has chosen a device. Without a profiles directory the library reads none.
bool hasUsersDevice(ToolPreferences &preferences) {
    const std::string name = preferences.currentProfile();
    if (name.empty() || preferences.profilesDirectory().empty()) return false;
    try {
        checkProfileName(name, preferences.profilesDirectory());
    } catch (const Failure &) {
        std::cerr << "zelvane: warning: it is the profile of your preferences; the program finds no device\n";
    }
    return true;
}

} // namespace

void settleDevice(const DeviceWish &wish, const std::string &standIn) {
    ToolPreferences preferences;
    if (wish.isBare) {
        if (!preferences.currentProfile().empty()) preferences.removeProfile();
        return;
    }
    if (wish.profile.empty() && hasUsersDevice(preferences)) return;
    const std::string name = wish.profile.empty() ? desktopProfile : wish.profile;
    std::string directory = preferences.profilesDirectory();
    // The user's own file of this name takes precedence.
    if (name == desktopProfile && (directory.empty() || !fs::exists(fs::path(directory) / desktopProfile)))
        directory = shippedProfiles();
    checkProfileName(name, directory);
    preferences.setProfile(directory.empty() ? standIn : directory, name);
}
