#include "tools/lab/results_json.h"
#include "tools/lab/device_run.h"

#include <algorithm>

namespace {

Json orNull(const std::string &text) {
    return text.empty() ? Json(nullptr) : Json(text);
}

Json refusalJson(const LabRefusal &refusal) {
    return {{"call", refusal.call},
            {"values", refusal.values},
            {"why", refusal.why},
            {"help", refusal.help},
            {"isMadeGood", refusal.isMadeGood}};
}

Json findingJson(const LabFinding &finding) {
    return {{"what", finding.what},
            {"name", finding.name},
            {"call", finding.call},
            {"whole", finding.whole},
            {"count", finding.count}};
}

Json errorJson(const LabGlError &error) {
    return {{"call", error.call}, {"error", error.error}, {"arguments", error.arguments}, {"count", error.count}};
}

Json pictureJson(const std::optional<Picture> &picture, const std::string &file) {
    if (!picture) return nullptr;
    return {{"file", file}, {"width", picture->width}, {"height", picture->height}};
}

Json differenceJson(const DeviceResult &result, const std::string &file) {
    if (!result.difference) return {{"problem", result.differenceProblem}};
    return {{"pixels", result.difference->pixels}, {"share", result.difference->share}, {"file", file}};
}

Json resultJson(const DeviceResult &result) {
    const std::string directory = fileNameOf(result.device) + '/';
    return {{"device", result.device},
            {"passes", result.passes},
            {"faults", result.faults},
            {"hasContext", result.hasContext},
            {"esVersion", orNull(result.esVersion)},
            {"renderer", orNull(result.renderer)},
            {"host", orNull(result.host)},
            {"config", orNull(result.config)},
            {"frames", result.frames},
            {"framesPerSecond", result.framesPerSecond},
            {"seconds", result.seconds},
            {"end", result.end},
            {"endedWell", result.endedWell},
            {"refusals", jsonList(result.refusals, refusalJson)},
            {"lacking", jsonList(result.lacking, findingJson)},
            {"glErrors", jsonList(result.glErrors, errorJson)},
            {"picture", pictureJson(result.picture, directory + "picture.png")},
            {"difference", differenceJson(result, directory + "difference.png")},
            {"logTail", result.logTail}};
}

} // namespace

Json resultsAsJson(const LabOptions &options, const std::vector<DeviceResult> &results) {
    return {{"schema", 1},
            {"program", options.program},
            {"reference", options.reference},
            {"failOn", options.failOn},
            {"passed", std::ranges::count(results, true, &DeviceResult::passes)},
            {"devices", jsonList(results, resultJson)}};
}
