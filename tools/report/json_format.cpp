#include "tools/command/json.h"
#include "tools/report/formats.h"

namespace tools {

using namespace capability;

namespace {

std::string esVersion(EsVersion version) {
    return version ? jsonText(esVersionName(version)) : "null";
}

std::string extensionNames(const SystemReport &report) {
    std::vector<HostExtension> present;
    for (const auto &[extension, isPresent] : report.extensions) {
        if (isPresent) present.push_back(extension);
    }
    return jsonList("[]", present, [](HostExtension id) { return jsonText(hostExtensionName(id)); });
}

} // namespace

std::string reportAsJson(const SystemReport &report, const VersionAnswers &answers, bool withExtensions) {
    std::string text = "{\n  \"openGL\": " + jsonText(glVersionName(report.glVersion)) + ",\n  \"features\": ";
    text += jsonList("{}", report.features, [](const auto &entry) {
        return jsonText(entry.first) + ": " + (entry.second->available ? "true" : "false");
    });
    // A version that is refused is null.
    text += ",\n  \"requests\": " + jsonList("[]", answers.versions, [](const VersionAnswer &answer) {
                return "{\"requested\": " + esVersion(answer.requested) + ", \"loose\": " + esVersion(answer.loose) +
                       ", \"strict\": " + esVersion(answer.strict) + "}";
            });
    text += ",\n  \"heldBack\": " + jsonList("[]", answers.heldBack, [](const auto &entry) {
                return "{\"feature\": " + jsonText(descriptorOf(entry.first).name) +
                       ", \"versions\": " + jsonList("[]", entry.second, esVersion) +
                       ", \"reason\": " + jsonText(failureOf(entry.first)) + "}";
            });
    if (withExtensions) text += ",\n  \"extensions\": " + extensionNames(report);
    return text + "\n}\n";
}

} // namespace tools
