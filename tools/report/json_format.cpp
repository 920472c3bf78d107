#include "foundation/product.h"
#include "tools/command/json.h"
#include "tools/report/formats.h"

namespace tools {

using namespace capability;

namespace {

// Null for an unsupported version.
Json esVersion(EsVersion version) {
    return version ? Json(esVersionName(version)) : Json(nullptr);
}

Json extensionNames(const SystemReport &report) {
    Json names = Json::array();
    for (const auto &[extension, isPresent] : report.extensions) {
        if (isPresent) names.push_back(hostExtensionName(extension));
    }
    return names;
}

} // namespace

std::string reportAsJson(const HostIdentity &host, const SystemReport &report, const VersionAnswers &answers,
                         bool withExtensions) {
    Json features = Json::object();
    for (const auto &[name, feature] : report.features)
        features[name] = feature->available;
    Json json = {{"zelvane", {{"version", productVersion}, {"build", productBuild}}},
                 {"host", {{"vendor", host.vendor}, {"renderer", host.renderer}, {"version", host.version}}},
                 {"openGL", glVersionName(report.glVersion)},
                 {"features", features}};
    json["requests"] = jsonList(answers.versions, [](const VersionAnswer &answer) -> Json {
        return {{"requested", esVersion(answer.requested)},
                {"loose", esVersion(answer.loose)},
                {"strict", esVersion(answer.strict)}};
    });
    json["heldBack"] = jsonList(answers.heldBack, [](const auto &entry) -> Json {
        return {{"feature", descriptorOf(entry.first).name},
                {"versions", jsonList(entry.second, esVersion)},
                {"reason", failureOf(entry.first)}};
    });
    if (withExtensions) json["extensions"] = extensionNames(report);
    return jsonFields(json);
}

} // namespace tools
