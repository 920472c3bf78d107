#include "tools/command/json.h"

namespace {

std::string rowsText(const Json &list) {
    std::string text;
    for (const Json &item : list)
        text += (text.empty() ? "\n    " : ",\n    ") + jsonLine(item);
    return '[' + text + (text.empty() ? "]" : "\n  ]");
}

} // namespace

std::string jsonLine(const Json &json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json orNull(const std::string &text) {
    return text.empty() ? Json(nullptr) : Json(text);
}

std::string jsonFields(const Json &object, const std::string &rows) {
    std::string text;
    for (const auto &[name, value] : object.items()) {
        text += (text.empty() ? "\n  " : ",\n  ") + jsonLine(name) + ": ";
        text += name == rows ? rowsText(value) : jsonLine(value);
    }
    return '{' + text + "\n}\n";
}
