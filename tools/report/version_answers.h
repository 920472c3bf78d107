// The result for each OpenGL ES version that an application can request on this host.
#pragma once

#include <map>
#include <vector>

#include "capability/es_gate.h"
#include "capability/feature.h"
#include "capability/versions.h"

namespace tools {

struct VersionAnswer {
    capability::EsVersion requested;
    capability::EsVersion loose;  // the version of the context in loose mode
    capability::EsVersion strict; // the same in strict mode; 0 when it is refused
};

struct VersionAnswers {
    std::vector<VersionAnswer> versions;
    // The versions that the feature holds back in strict mode. A version that passes by a compatibility extension is
    // not held back.
    std::map<capability::Feature, std::vector<capability::EsVersion>> heldBack;
    bool carriesEs30 = false;
};

// For a config that supports ES 3, as those of most devices do.
[[nodiscard]] VersionAnswers askAboutVersions(const capability::EsGate &gate);

} // namespace tools
