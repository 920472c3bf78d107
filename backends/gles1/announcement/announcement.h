// What a context tells of itself: from the device profile in force, cut to what the host can carry, or from the host
// alone. Constant once made, with the host context current.
#pragma once

#include "announcement/device_limits.h"

#include <string>

class Announcement {
public:
    // settings: for the zvSettings functions, or null.
    Announcement(const HostFeatures &host, const void *settings);

    const std::string version;
    const std::string vendor;
    const std::string renderer;
    const std::string extensions; // with a blank between
    const Limits limits;

private:
    Announcement(const HostFeatures &host, const std::optional<EsBlock> &device);
};
