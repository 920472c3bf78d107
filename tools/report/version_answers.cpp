#include "tools/report/version_answers.h"

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

VersionAnswers askAboutVersions(const EsGate &gate) {
    const auto settle = [&](const Request &request, bool isStrict) {
        auto attribs = attribsOf(request, isStrict);
        const bool isMade = settleEsVersion([&] { return &gate; }, true, attribs) == HostAnswer::carries;
        return isMade ? esVersionFromContext(attribs.esMajor, attribs.esMinor) : 0;
    };
    VersionAnswers answers;
    for (const auto &request : requests) {
        const EsVersion version = esVersionFromContext(request.major, request.minor);
        answers.versions.push_back({version, settle(request, false), settle(request, true)});

        const GateAnswer &answer = gate.of(version);
        if (version == es3_0) answers.carriesEs30 = answer.isPassed();
        if (answer.isPassed()) continue;
        for (const auto feature : answer.missing)
            answers.heldBack[feature].push_back(version);
    }
    return answers;
}

} // namespace tools
