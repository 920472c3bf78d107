// The OpenGL ES version that a context gets on this host.
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

// The result of one version's gate.
struct GateAnswer {
    std::vector<Feature> missing;  // in the order of the gate
    bool hasCompatibility = false; // an extension of the host satisfies all of it

    [[nodiscard]] bool isPassed() const { return missing.empty() || hasCompatibility; }
};

// The features that the host lacks for each version, found by one probe. Constant; any thread.
class EsGate {
public:
    // Called with the host context current that the set was made for.
    explicit EsGate(const Es31Features &set);

    // Versions other than ES 2.0 to 3.2 have no gate and pass.
    [[nodiscard]] const GateAnswer &of(EsVersion version) const;
    // The highest minor version of ES 3 whose shading language and limits the host guarantees by its own version or by
    // a compatibility extension, as the host's own ES driver would advertise it. Nothing when it guarantees no ES 3.
    [[nodiscard]] std::optional<int32_t> promisedEs3Minor() const { return m_promisedEs3Minor; }

private:
    std::array<GateAnswer, 4> m_answers; // of ES 2.0 to 3.2
    std::optional<int32_t> m_promisedEs3Minor;
};

// Probes the host with a context on the calling thread. Nothing when none can be created.
[[nodiscard]] std::optional<EsGate> probeEsGate(const DynamicLibrary &library,
                                                const std::shared_ptr<glove::WSAPI> &windowSystem);

enum class HostAnswer {
    carries,
    lacks,
    noProbe, // the host could not be probed
};

// The result of strict mode's check for esMajor and esMinor.
[[nodiscard]] bool hostCanCarryEsVersion(const EsGate &gate, const ContextAttribs &attribs);

// Raises esMinor of an ES 3.0 or 3.1 record as far as the host supports it; any other record is left unchanged. Whether
// the device profile or strict mode allows the higher version is not checked.
void raiseEs3MinorVersion(const EsGate &gate, ContextAttribs &attribs);

// Raises the version as desktop drivers do: a context of ES 2 or 3 gets the highest version that the host guarantees
// and the device has. highestMinor: the device's for ES 3; nothing when it has none. canBeEs3: as below.
void raiseAsDriversDo(const EsGate &gate, bool canBeEs3, std::optional<int32_t> highestMinor, ContextAttribs &attribs);

// Sets esMajor and esMinor of a record whose requested version the profile allows. canBeEs3: the config supports ES 3,
// so that a context of major version 2 is raised to 3. In strict mode, given in the record, the host must support the
// result, or else the requested major version; esMinor stays as raised even then. askGate: returns null when the host
// cannot be probed; called only if the gate matters.
template <typename AskGate>
[[nodiscard]] HostAnswer settleEsVersion(AskGate askGate, bool canBeEs3, ContextAttribs &attribs) {
    // The context still reports the major version 2.
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
