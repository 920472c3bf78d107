#include "capability/es_gate.h"

#include <algorithm>

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

// What promises each minor version of ES 3, the highest first.
constexpr struct {
    int32_t minor;
    GlVersion glVersion; // that has it in its core
    const char *extension;
} promises[] = {
    {2, unknownGlVersion, "GL_ARB_ES3_2_compatibility"},
    {1, gl4_5, "GL_ARB_ES3_1_compatibility"},
    {0, gl4_3, "GL_ARB_ES3_compatibility"},
};

std::optional<int32_t> promisedMinor(const HostGlView &view) {
    const GlVersion version = hostGlVersion(view);
    for (const auto &promise : promises) {
        if (version >= promise.glVersion || hostHasExtension(view, promise.extension)) return promise.minor;
    }
    return std::nullopt;
}

} // namespace

EsGate::EsGate(const Es31Features &set) : m_promisedEs3Minor(promisedMinor(set.view())) {
    for (size_t row = 0; row < m_answers.size(); ++row) {
        const char *const compatibility = gates[row].compatibility;
        m_answers[row] = {gates[row].missingFeatures(set),
                          compatibility && hostHasExtension(set.view(), compatibility)};
    }
}

const GateAnswer &EsGate::of(EsVersion version) const {
    static const GateAnswer &passed = *new GateAnswer; // threads ask while the process ends
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

void raiseAsDriversDo(const EsGate &gate, bool canBeEs3, std::optional<int32_t> highestMinor, ContextAttribs &attribs) {
    const auto promised = gate.promisedEs3Minor();
    if (attribs.requestedMajor < 2 || !canBeEs3 || !promised || !highestMinor) return;
    if (attribs.esMajor < 3) {
        attribs.esMajor = 3;
        attribs.esMinor = 0;
    }
    attribs.esMinor = std::max(attribs.esMinor, std::min(*promised, *highestMinor));
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
