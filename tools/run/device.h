// The device that a program finds: the one that is asked for, the user's, or the desktop that ships with the command.
#pragma once

#include <string>

struct DeviceWish {
    std::string profile; // empty: the user's, and "Desktop" where the user has chosen none
    bool isBare = false; // no device at all
};

// Writes it into the preferences that this process points to. standIn: a directory for a built-in profile where the
// user has no directory of profiles. Fails the command when the profile that is asked for cannot be read; of the user's
// own it warns.
void settleDevice(const DeviceWish &wish, const std::string &standIn);
