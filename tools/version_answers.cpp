#include "tools/version_answers.h"

#include "capability/es_gate.h"
#include "capability/host_probe.h"

namespace tools {

using namespace capability;

namespace {

struct Request {
    int32_t major;
    int32_t minor;
};

constexpr Request requests[] = {{1, 1}, {2, 0}, {3, 0}, {3, 1}, {3, 2}};

ContextAttribs attribsOf(const Request &request, bool isStrict) {
    ContextAttribs attribs{};
    attribs.requestedMajor = request.major;
    attribs.esMajor = request.major;
    attribs.esMinor = request.minor;
    attribs.strictContextMode = isStrict;
    return attribs;
}

} // namespace

VersionAnswers askAboutVersions(const DynamicLibrary &library, const std::shared_ptr<glove::WSAPI> &windowSystem) {
    const auto settle = [&](const Request &request, bool isStrict) {
        auto attribs = attribsOf(request, isStrict);
        const bool isMade = settleEsVersion(library, windowSystem, true, attribs) == HostAnswer::carries;
        return isMade ? esVersionFromContext(attribs.esMajor, attribs.esMinor) : 0;
    };
    VersionAnswers answers;
    for (const auto &request : requests) {
        const EsVersion version = esVersionFromContext(request.major, request.minor);
        answers.versions.push_back({version, settle(request, false), settle(request, true)});

        const bool isCarried =
            hostCanCarryEsVersion(library, windowSystem, attribsOf(request, true)) == HostAnswer::carries;
        if (version == es3_0) answers.carriesEs30 = isCarried;
        if (isCarried) continue;
        const HostProbe probe(windowSystem);
        if (!probe.isCurrent()) continue;
        for (const auto feature : featuresHoldingBack(library, version))
            answers.heldBack[feature].push_back(version);
    }
    return answers;
}

} // namespace tools
