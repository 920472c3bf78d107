#include "journal/choice_json.h"
#include "tools/command/json.h"
#include "tools/explain/explanation.h"

std::string explanationAsJson(const Explanation &explanation) {
    Json json = {{"device", explanation.device.empty() ? Json(nullptr) : Json(explanation.device)},
                 {"rules", explanation.rules == egl::ConfigKind::ofDesktop ? "standard" : "device"},
                 {"criteria", journal::attributesJson(explanation.criteria.data())},
                 {"configs", explanation.ids}};
    json.update(journal::choiceJson(explanation.account));
    return jsonFields(json, "fallenOut");
}
