// The profiles that there are, and the one that programs find.
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
    size_t otherFiles = 0; // of the directory, which are no profiles

    // Without a directory no profile is read.
    [[nodiscard]] bool isRead() const { return !directory.empty() && !chosen.empty(); }
    // Null when none is in force, or when the one that is read is none: then EGL fails.
    [[nodiscard]] const ListedProfile *inForce() const;
};

[[nodiscard]] ProfileList listProfiles();

[[nodiscard]] std::string listAsText(const ProfileList &list);
// One object; the configs of a profile are a number.
[[nodiscard]] std::string listAsJson(const ProfileList &list);
// A name a line, of those that can be chosen.
[[nodiscard]] std::string listAsNames(const ProfileList &list);
