#include "capability/es_gate.h"

#include <algorithm>

#include "capability/host_probe.h"

namespace capability {

namespace {

constexpr EsVersion base = 0; // the requirements of every version

struct Gate {
    EsVersion version;
    EsVersion below;
    const char *compatibility; // null for none
};

constexpr Gate gates[] = {
#define GATE(version, below, compatibility) {version, below, compatibility},
#define ASKED(...)
#include "capability/data/es_gates.def"
#undef ASKED
#undef GATE
};

constexpr struct {
    EsVersion gate;
    Feature feature;
    bool (*isAvailable)(const Es31Features &set);
} asked[] = {
#define GATE(...)
#define ASKED(gate, feature)                                                                                           \
    {gate, Feature::feature, [](const Es31Features &set) { return featureAvailable(set.feature); }},
#include "capability/data/es_gates.def"
#undef ASKED
#undef GATE
};

void addMissing(EsVersion version, const Es31Features &set, std::vector<Feature> &missing) {
    for (const auto &row : asked) {
        if (row.gate == version && !row.isAvailable(set)) missing.push_back(row.feature);
    }
    if (version != base) addMissing(std::ranges::find(gates, version, &Gate::version)->below, set, missing);
}

// The OpenGL version or the extension that guarantees each minor version of ES 3, the highest first.
constexpr struct {
    int32_t minor;
    GlVersion glVersion; // whose core includes it
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
    for (const Gate &gate : gates) {
        GateAnswer &answer = m_answers[static_cast<size_t>(gate.version - es2_0)];
        addMissing(gate.version, set, answer.missing);
        answer.hasCompatibility = gate.compatibility && hostHasExtension(set.view(), gate.compatibility);
    }
}

const GateAnswer &EsGate::of(EsVersion version) const {
    static const GateAnswer &passed = *new GateAnswer; // never destroyed: threads query gates while the process ends
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
