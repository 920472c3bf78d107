// The preferences of one run: a copy of the user's with the run's changes, in a directory that is removed with it.
#pragma once

#include <optional>
#include <string>

#include "tools/command/temporary_directory.h"
#include "tools/run/device.h"

class PrivatePreferences {
public:
    struct Wishes {
        DeviceWish device;
        std::optional<bool> strict;
    };

    // Sets this process, and its children, to use the copy. Fails the command when there is no such profile or the
    // user's file cannot be read.
    explicit PrivatePreferences(const Wishes &wishes);

    // The directory of the copy and other files of the run.
    [[nodiscard]] const std::string &directory() const { return m_directory.path(); }

private:
    TemporaryDirectory m_directory;
};
