#include "capability/es_gate.h"

#include "capability/feature_checks.h"
#include "capability/host_probe.h"

namespace capability {

namespace {

// The gate of one version: what it lacks.
struct GateAnswer {
    std::vector<Feature> missing;
    bool hasCompatibility = false; // an extension of the host that makes up for all of it

    [[nodiscard]] bool isPassed() const { return missing.empty() || hasCompatibility; }
};

void addIfMissing(std::vector<Feature> &missing, Feature feature, const FeatureBinding &binding) {
    if (!featureAvailable(binding, descriptorOf(feature))) missing.push_back(feature);
}

GateAnswer askEs20(const Es20Features &set) {
    GateAnswer answer;
    addIfMissing(answer.missing, Feature::shaderPrograms, set.shaderPrograms);
    addIfMissing(answer.missing, Feature::uniforms, set.uniforms);
    const auto base = missingBaseFeatures(set);
    answer.missing.insert(answer.missing.end(), base.begin(), base.end());
    answer.hasCompatibility = hostHasExtension(set.view(), "GL_ARB_ES2_compatibility");
    return answer;
}

GateAnswer askEs30(const Es30Features &set) {
    return {missingEs30Features(set), hostHasExtension(set.view(), "GL_ARB_ES3_compatibility")};
}

GateAnswer askEs32(const Es31Features &set) {
    GateAnswer answer;
    addIfMissing(answer.missing, Feature::baseVertexOffset, set.baseVertexOffset);
    const auto es31 = missingEs31Features(set);
    answer.missing.insert(answer.missing.end(), es31.begin(), es31.end());
    return answer;
}

GateAnswer askGate(const DynamicLibrary &library, EsVersion version) {
    switch (version) {
    case es2_0:
        return askEs20(Es20Features(library));
    case es3_0:
        return askEs30(Es30Features(library));
    case es3_1:
        return {missingEs31Features(Es31Features(library)), false};
    case es3_2:
        return askEs32(Es31Features(library));
    default:
        return {};
    }
}

} // namespace

HostAnswer hostCanCarryEsVersion(const DynamicLibrary &library, const std::shared_ptr<glove::WSAPI> &windowSystem,
                                 const ContextAttribs &attribs) {
    const HostProbe probe(windowSystem);
    if (!probe.isCurrent()) return HostAnswer::noProbe;
    const EsVersion version = esVersionFromContext(attribs.esMajor, attribs.esMinor);
    return askGate(library, version).isPassed() ? HostAnswer::carries : HostAnswer::lacks;
}

void raiseEs3MinorVersion(const DynamicLibrary &library, const std::shared_ptr<glove::WSAPI> &windowSystem,
                          ContextAttribs &attribs) {
    if (attribs.esMajor != 3 || attribs.esMinor >= 2) return;
    const HostProbe probe(windowSystem);
    if (!probe.isCurrent()) return;
    const Es31Features set(library);
    if (!checkEs31Features(set)) return;
    const bool isEs32 = featureAvailable(set.baseVertexOffset, descriptorOf(Feature::baseVertexOffset));
    attribs.esMinor = isEs32 ? 2 : 1;
}

HostAnswer settleEsVersion(const DynamicLibrary &library, const std::shared_ptr<glove::WSAPI> &windowSystem,
                           bool canBeEs3, ContextAttribs &attribs) {
    // The application still sees 2.
    if (attribs.requestedMajor == 2 && canBeEs3) attribs.esMajor = 3;
    raiseEs3MinorVersion(library, windowSystem, attribs);
    if (!attribs.strictContextMode) return HostAnswer::carries;

    const auto answer = hostCanCarryEsVersion(library, windowSystem, attribs);
    if (answer == HostAnswer::carries || attribs.esMajor == attribs.requestedMajor) return answer;
    attribs.esMajor = attribs.requestedMajor;
    return hostCanCarryEsVersion(library, windowSystem, attribs);
}

std::vector<Feature> featuresHoldingBack(const DynamicLibrary &library, EsVersion version) {
    return askGate(library, version).missing;
}

} // namespace capability
