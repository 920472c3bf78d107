// The version, strings, extensions and limits that a context reports: from the device profile in use, limited to what
// the host supports, or from the host only. Constant once created, with the host context current.
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
    const std::string extensions; // separated by blanks
    const Limits limits;

private:
    Announcement(const HostFeatures &host, const std::optional<EsBlock> &device);
};
