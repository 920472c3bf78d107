#pragma once

#include "profiles/device_profile.h"
#include "tools/profiles/profile_findings.h"

namespace tinyxml2 {
class XMLElement;
}

// Checks the es blocks for content that back ends ignore or read differently: versions, limits, extensions; and for
// versions that no config supports. profile: read from the same text.
void checkEsBlocks(const tinyxml2::XMLElement &root, const egl::DeviceProfile &profile, ProfileFindings &findings);
