#include "capability/es_gate.h"

#include "capability/feature_checks.h"
#include "capability/host_probe.h"

namespace capability {

namespace {

// One row a version, from ES 2.0 upwards.
struct Gate {
    std::vector<Feature> (*missingFeatures)(const Es31Features &set);
    const char *compatibility; // null for none
};

constexpr Gate gates[] = {
    {missingEs20Features, "GL_ARB_ES2_compatibility"},
    {[](const Es31Features &set) { return missingEs30Features(set); }, "GL_ARB_ES3_compatibility"},
    {missingEs31Features, nullptr},
    {missingEs32Features, nullptr},
};

} // namespace

EsGate::EsGate(const Es31Features &set) {
    for (size_t row = 0; row < m_answers.size(); ++row) {
        const char *const compatibility = gates[row].compatibility;
        m_answers[row] = {gates[row].missingFeatures(set),
                          compatibility && hostHasExtension(set.view(), compatibility)};
    }
}

const GateAnswer &EsGate::of(EsVersion version) const {
    static const GateAnswer passed;
    return version >= es2_0 && version <= es3_2 ? m_answers[static_cast<size_t>(version - es2_0)] : passed;
}

std::optional<EsGate> probeEsGate(const DynamicLibrary &library, const std::shared_ptr<glove::WSAPI> &windowSystem) {
    const HostProbe probe(windowSystem);
    if (!probe.isCurrent()) return std::nullopt;
    return EsGate(Es31Features(library));
}

bool hostCanCarryEsVersion(const EsGate &gate, const ContextAttribs &attribs) {
    return gate.of(esVersionFromContext(attribs.esMajor, attribs.esMinor)).isPassed();
}

void raiseEs3MinorVersion(const EsGate &gate, ContextAttribs &attribs) {
    if (attribs.esMajor != 3 || attribs.esMinor >= 2) return;
    if (gate.of(es3_2).isPassed()) {
        attribs.esMinor = 2;
    } else if (gate.of(es3_1).isPassed()) {
        attribs.esMinor = 1;
    }
}

} // namespace capability
