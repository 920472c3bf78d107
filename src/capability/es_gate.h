// Which OpenGL ES version a context gets on this host. Each function looks at the host through a probing context on the
// calling thread, takes no lock, and needs a library that is open.
#pragma once

#include <memory>
#include <vector>

#include "capability/feature.h"
#include "foundation/dynamic_library.h"
#include "host/wsapi.h"
#include "zelvane/back_end.h"

namespace capability {

enum class HostAnswer {
    carries,
    lacks,
    noProbe, // the probing context could not be made
};

// What strict mode asks for esMajor and esMinor. Versions other than ES 2.0 to 3.2 pass without a test.
[[nodiscard]] HostAnswer hostCanCarryEsVersion(const DynamicLibrary &library,
                                               const std::shared_ptr<glove::WSAPI> &windowSystem,
                                               const ContextAttribs &attribs);

// Raises esMinor of an ES 3.0 or 3.1 record as far as the host carries it, and leaves any other record alone. Whether
// the device profile or strict mode allows the higher version is not asked; callers rely on that.
void raiseEs3MinorVersion(const DynamicLibrary &library, const std::shared_ptr<glove::WSAPI> &windowSystem,
                          ContextAttribs &attribs);

// Settles esMajor and esMinor of a record whose requested version the profile allows. canBeEs3: the config does ES 3,
// so that a context of major version 2 is raised to 3. In strict mode, which the record tells, the host must carry the
// result, or else the major version that was asked for; esMinor stays as raised even then.
[[nodiscard]] HostAnswer settleEsVersion(const DynamicLibrary &library,
                                         const std::shared_ptr<glove::WSAPI> &windowSystem, bool canBeEs3,
                                         ContextAttribs &attribs);

// What the gate of the version finds missing, in its order, with a host context current. A host that lacks features can
// still pass by a compatibility extension. None for a version that has no gate.
[[nodiscard]] std::vector<Feature> featuresHoldingBack(const DynamicLibrary &library, EsVersion version);

} // namespace capability
