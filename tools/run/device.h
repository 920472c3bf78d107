// The device of a run: the requested one, the user's, or the desktop that is installed with the command.
#pragma once

#include <string>

struct DeviceWish {
    std::string profile; // empty: the user's, and "Desktop" where the user has chosen none
    bool isBare = false; // no device at all
};

// Writes it into the preferences that this process uses. standIn: a directory for a built-in profile when the user has
// no directory of profiles. Fails the command when the requested profile cannot be read; for the user's own it prints a
// warning.
void settleDevice(const DeviceWish &wish, const std::string &standIn);
