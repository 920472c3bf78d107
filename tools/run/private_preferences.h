// The preferences of one run: a copy of the user's with what the run wants changed, in a directory that goes with it.
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

    // Points this process, and what it starts, to the copy. Fails the command when there is no such profile or the
    // user's file cannot be read.
    explicit PrivatePreferences(const Wishes &wishes);

    // Where the copy lies, and other files of the run.
    [[nodiscard]] const std::string &directory() const { return m_directory.path(); }

private:
    TemporaryDirectory m_directory;
};
