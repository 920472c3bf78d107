#include "tools/lab/verdict.h"

#include <algorithm>

namespace {

void compare(DeviceResult &result, const DeviceResult &reference) {
    if (!result.picture || !reference.picture) {
        result.differenceProblem = result.picture ? "the reference has no picture" : "there is no picture";
        return;
    }
    result.difference = differenceOf(*reference.picture, *result.picture);
    if (!result.difference) result.differenceProblem = "the picture has another size";
}

bool isOtherPicture(const DeviceResult &result) {
    return !result.difference || result.difference->share > differingShare;
}

std::vector<std::string> faultsOf(const DeviceResult &result) {
    const bool isRefused =
        std::ranges::any_of(result.refusals, [](const auto &refusal) { return !refusal.isMadeGood; });
    const bool isFaulty[] = {!result.hasContext || result.frames == 0 || !result.endedWell, !result.glErrors.empty(),
                             isRefused, !result.lacking.empty(), isOtherPicture(result)};
    std::vector<std::string> faults;
    for (size_t kind = 0; kind < faultKinds().size(); ++kind)
        if (isFaulty[kind]) faults.push_back(faultKinds()[kind]);
    return faults;
}

} // namespace

const std::vector<std::string> &faultKinds() {
    static const std::vector<std::string> kinds = {"start", "error", "refusal", "lacking", "picture"};
    return kinds;
}

void judge(std::vector<DeviceResult> &results, const std::string &reference, const std::set<std::string> &failOn) {
    const auto found = std::ranges::find(results, reference, &DeviceResult::device);
    for (DeviceResult &result : results) {
        if (found != results.end()) compare(result, *found);
        result.faults = faultsOf(result);
        result.passes =
            std::ranges::none_of(result.faults, [&](const std::string &fault) { return failOn.contains(fault); });
    }
}
