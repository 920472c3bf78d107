#pragma once

#include "profiles/device_profile.h"
#include "tools/profiles/profile_findings.h"

namespace tinyxml2 {
class XMLElement;
}

// Finds in the es blocks what back ends ignore or read differently: versions, limits, extensions; and versions that no
// config supports. profile: as the reader makes it of the same text.
void checkEsBlocks(const tinyxml2::XMLElement &root, const egl::DeviceProfile &profile, ProfileFindings &findings);
