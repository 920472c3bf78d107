#include "journal/choice_json.h"
#include "tools/command/json.h"
#include "tools/profiles/print_profile.h"
#include "tools/profiles/profile_difference.h"

namespace {

Json valuesJson(const std::vector<ValueDifference> &values) {
    Json json = Json::object();
    for (const ValueDifference &value : values)
        json[value.name] = {{"a", orNull(value.a)}, {"b", orNull(value.b)}};
    return json;
}

Json onlyJson(const OnlyIn &names) {
    return {{"onlyInA", names.a}, {"onlyInB", names.b}};
}

Json configJson(const egl::Config &config) {
    return journal::attributesJson(config.toAttributeList().data());
}

Json configsJson(const ConfigDifference &configs) {
    using Renumbered = ConfigDifference::Renumbered;
    using Changed = ConfigDifference::Changed;
    return {{"same", configs.sameCount},
            {"renumbered", jsonList(configs.renumbered,
                                    [](const Renumbered &pair) -> Json {
                                        return {{"a", pair.a}, {"b", pair.b}};
                                    })},
            {"changed", jsonList(configs.changed,
                                 [](const Changed &config) -> Json {
                                     return {{"id", config.id}, {"attributes", valuesJson(config.attributes)}};
                                 })},
            {"onlyInA", jsonList(configs.onlyInA, configJson)},
            {"onlyInB", jsonList(configs.onlyInB, configJson)}};
}

Json esJson(const EsDifference &es) {
    Json lists = Json::object();
    for (const auto &[name, values] : es.lists)
        lists[name] = onlyJson(values);
    return {{"version", versionName(es.version)},
            {"extensions", onlyJson(es.extensions)},
            {"limits", valuesJson(es.limits)},
            {"lists", lists}};
}

} // namespace

std::string differenceAsJson(const ProfileDifference &difference) {
    return jsonFields({{"a", difference.a},
                       {"b", difference.b},
                       {"isSame", difference.isNone()},
                       {"identity", valuesJson(difference.identity)},
                       {"esVersions", onlyJson(difference.esVersions)},
                       {"configs", configsJson(difference.configs)},
                       {"es", jsonList(difference.es, esJson)}},
                      "es");
}
