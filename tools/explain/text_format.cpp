#include <algorithm>
#include <cstdio>

#include "foundation/attribute_list.h"
#include "profiles/egl_names.h"
#include "tools/explain/explanation.h"

namespace {

bool isAskedFor(const std::vector<int32_t> &criteria, int32_t attribute) {
    for (const auto &pair : AttributeList(criteria.data()))
        if (pair.name == attribute) return true;
    return false;
}

std::string padded(int32_t number, int width) {
    char text[32];
    snprintf(text, sizeof text, "%*d", width, number);
    return text;
}

std::string headText(const Explanation &explanation) {
    const std::string criteria = egl::attributeListText(explanation.criteria.data());
    const bool isStandard = explanation.rules == egl::ConfigKind::ofDesktop;
    return "device:  " + (explanation.device.empty() ? "none" : explanation.device) +
           "\nrules:   " + (isStandard ? "of the EGL standard" : "of the device") +
           "\nasked:   " + (criteria.empty() ? "nothing" : criteria) + "\n\n";
}

std::string fallOutText(const egl::FallOut &reason, const std::vector<int32_t> &criteria) {
    return egl::attributeName(reason.attribute) + ": wanted " + egl::valueText(reason.attribute, reason.wanted) +
           (isAskedFor(criteria, reason.attribute) ? "" : " by default") + ", has " +
           egl::valueText(reason.attribute, reason.had);
}

std::string comparisonText(const egl::Comparison &comparison, int32_t next) {
    const std::string values = egl::keyName(comparison.key) + ' ' + egl::keyText(comparison.key, comparison.former) +
                               " against " + egl::keyText(comparison.key, comparison.latter);
    return comparison.isBefore ? "before " + std::to_string(next) + " by " + values
                               : values + " leaves the order to " + std::to_string(next) + " open";
}

} // namespace

std::string explanationAsText(const Explanation &explanation) {
    const auto &[fallenOut, order, comparisons] = explanation.account;
    std::string text = headText(explanation);
    for (const int32_t id : explanation.ids) {
        const auto fallen = std::ranges::find(fallenOut, id, &egl::ChoiceAccount::FallenOut::id);
        text += "config " + padded(id, 3) + "  " +
                (fallen == fallenOut.end() ? "taken" : "out    " + fallOutText(fallen->reason, explanation.criteria)) +
                '\n';
    }
    text += order.empty() ? "\nno config matches\n" : "\norder:\n";
    for (size_t place = 0; place < order.size(); ++place) {
        text += padded(static_cast<int32_t>(place) + 1, 3) + ". config " + padded(order[place], 3);
        if (place < comparisons.size()) text += "  " + comparisonText(comparisons[place], order[place + 1]);
        text += '\n';
    }
    return text;
}
