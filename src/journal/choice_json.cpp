#include "journal/choice_json.h"

#include "foundation/attribute_list.h"
#include "foundation/json_list.h"
#include "profiles/egl_names.h"

namespace journal {

namespace {

Json fallOutJson(const egl::ChoiceAccount::FallenOut &fallen) {
    const egl::FallOut &reason = fallen.reason;
    return {{"config", fallen.id},
            {"attribute", egl::attributeName(reason.attribute)},
            {"wanted", egl::valueText(reason.attribute, reason.wanted)},
            {"had", egl::valueText(reason.attribute, reason.had)}};
}

Json comparisonJson(const egl::Comparison &comparison) {
    return {{"key", egl::keyName(comparison.key)},
            {"former", egl::keyText(comparison.key, comparison.former)},
            {"latter", egl::keyText(comparison.key, comparison.latter)},
            {"decides", comparison.isBefore}};
}

} // namespace

Json attributesJson(const int32_t *attributes) {
    Json object = Json::object();
    for (const auto &[name, value] : AttributeList(attributes))
        object[egl::attributeName(name)] = egl::valueText(name, value);
    return object;
}

Json choiceJson(const egl::ChoiceAccount &account) {
    return {{"fallenOut", jsonList(account.fallenOut, fallOutJson)},
            {"order", account.order},
            {"comparisons", jsonList(account.comparisons, comparisonJson)}};
}

} // namespace journal
