// A profile as an argument of a verb.
#pragma once

#include <string>

#include "profiles/device_profile.h"

struct NamedProfile {
    std::string name; // as given by the user
    std::string text; // well-formed
    egl::DeviceProfile profile;
};

// An argument with a slash is a file. Any other is the name of a built-in profile, of a file in the profiles directory,
// "Desktop", or else a file of the working directory. Fails the command when there is none, or it is not a profile.
[[nodiscard]] NamedProfile readNamedProfile(const std::string &nameOrFile);
