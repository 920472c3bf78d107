// The directory of the user's profile files.
#pragma once

#include <string>

// Creates the default directory if it does not exist. Fails the command when it cannot be created.
[[nodiscard]] std::string makeOwnProfilesDirectory();
