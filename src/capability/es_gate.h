// Which OpenGL ES version a context gets on this host.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "capability/feature.h"
#include "capability/feature_sets.h"
#include "foundation/dynamic_library.h"
#include "host/wsapi.h"
#include "zelvane/back_end.h"

namespace capability {

// The gate of one version.
struct GateAnswer {
    std::vector<Feature> missing;  // in the order of the gate
    bool hasCompatibility = false; // an extension of the host that makes up for all of it

    [[nodiscard]] bool isPassed() const { return missing.empty() || hasCompatibility; }
};

// What the host lacks for each version, looked at once. Constant; any thread.
class EsGate {
public:
    // The host context that the set was made for is current.
    explicit EsGate(const Es31Features &set);

    // Versions other than ES 2.0 to 3.2 have no gate and pass.
    [[nodiscard]] const GateAnswer &of(EsVersion version) const;
    // The highest minor version of ES 3 whose shading language and limits the host promises by its own version or by a
    // compatibility extension, as a driver of its own would offer it. Nothing when it promises no ES 3.
    [[nodiscard]] std::optional<int32_t> promisedEs3Minor() const { return m_promisedEs3Minor; }

private:
    std::array<GateAnswer, 4> m_answers; // of ES 2.0 to 3.2
    std::optional<int32_t> m_promisedEs3Minor;
};

// Looks at the host through a probing context on the calling thread. Nothing when that cannot be made.
[[nodiscard]] std::optional<EsGate> probeEsGate(const DynamicLibrary &library,
                                                const std::shared_ptr<glove::WSAPI> &windowSystem);

enum class HostAnswer {
    carries,
    lacks,
    noProbe, // nobody could look at the host
};

// What strict mode asks for esMajor and esMinor.
[[nodiscard]] bool hostCanCarryEsVersion(const EsGate &gate, const ContextAttribs &attribs);

// Raises esMinor of an ES 3.0 or 3.1 record as far as the host carries it, and leaves any other record alone. Whether
// the device profile or strict mode allows the higher version is not checked.
void raiseEs3MinorVersion(const EsGate &gate, ContextAttribs &attribs);

// The same as a desktop's driver does it: a context of ES 2 or 3 gets the highest version that the host promises and
// the device has. highestMinor: the device's of ES 3; nothing when it has none. canBeEs3: as below.
void raiseAsDriversDo(const EsGate &gate, bool canBeEs3, std::optional<int32_t> highestMinor, ContextAttribs &attribs);

// Settles esMajor and esMinor of a record whose requested version the profile allows. canBeEs3: the config does ES 3,
// so that a context of major version 2 is raised to 3. In strict mode, which the record tells, the host must carry the
// result, or else the major version that was asked for; esMinor stays as raised even then. askGate: null when nobody
// could look at the host; called only where the gate counts.
template <typename AskGate>
[[nodiscard]] HostAnswer settleEsVersion(AskGate askGate, bool canBeEs3, ContextAttribs &attribs) {
    // The application still sees 2.
    if (attribs.requestedMajor == 2 && canBeEs3) attribs.esMajor = 3;
    if (attribs.esMajor != 3 && !attribs.strictContextMode) return HostAnswer::carries;
    const EsGate *const gate = askGate();
    if (!gate) return attribs.strictContextMode ? HostAnswer::noProbe : HostAnswer::carries;
    raiseEs3MinorVersion(*gate, attribs);
    if (!attribs.strictContextMode || hostCanCarryEsVersion(*gate, attribs)) return HostAnswer::carries;
    attribs.esMajor = attribs.requestedMajor;
    return hostCanCarryEsVersion(*gate, attribs) ? HostAnswer::carries : HostAnswer::lacks;
}

} // namespace capability
