// What becomes of each OpenGL ES version that an application can ask for on this host.
#pragma once

#include <map>
#include <vector>

#include "capability/es_gate.h"
#include "capability/feature.h"
#include "capability/versions.h"

namespace tools {

struct VersionAnswer {
    capability::EsVersion requested;
    capability::EsVersion loose;  // what the context gets in loose mode
    capability::EsVersion strict; // the same in strict mode; 0 when it is refused
};

struct VersionAnswers {
    std::vector<VersionAnswer> versions;
    // The versions that the feature holds back in strict mode. A version that passes by a compatibility extension is
    // held back by nothing.
    std::map<capability::Feature, std::vector<capability::EsVersion>> heldBack;
    bool carriesEs30 = false;
};

// For a config that does ES 3, as those of most devices do.
[[nodiscard]] VersionAnswers askAboutVersions(const capability::EsGate &gate);

} // namespace tools
