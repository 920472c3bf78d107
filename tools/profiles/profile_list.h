// The existing profiles, and the one that programs use.
#pragma once

#include <string>
#include <vector>

#include "profiles/device_profile.h"

struct ListedProfile {
    enum Place { builtIn, file, hiddenFile }; // hidden by the built-in profile of its name, which programs find instead

    std::string name;
    Place place;
    egl::DeviceProfile profile; // empty for a hidden file
};

struct ProfileList {
    std::string directory; // empty when none is set
    std::string chosen;    // as stored; empty for none
    std::vector<ListedProfile> profiles;
    size_t otherFiles = 0; // in the directory, which are not profiles

    // Without a directory no profile is read.
    [[nodiscard]] bool isRead() const { return !directory.empty() && !chosen.empty(); }
    // Null when none is in use, or when the one that is read is invalid: then EGL fails.
    [[nodiscard]] const ListedProfile *inForce() const;
};

[[nodiscard]] ProfileList listProfiles();

[[nodiscard]] std::string listAsText(const ProfileList &list);
// One object; the configs of a profile are a count.
[[nodiscard]] std::string listAsJson(const ProfileList &list);
// The selectable names, one per line.
[[nodiscard]] std::string listAsNames(const ProfileList &list);
