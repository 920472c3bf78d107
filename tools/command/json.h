// JSON output of the command.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

// Fields stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// On one line. Bytes that are not UTF-8, as after a cut in a text, become replacement characters.
[[nodiscard]] std::string jsonLine(const Json &json);

// An object with one field per line, for people as well as for programs. A list of the field rows, if one is named, has
// one item per line.
[[nodiscard]] std::string jsonFields(const Json &object, const std::string &rows = {});

// The array of the function's results for the items.
template <typename Items, typename Make>
Json jsonList(const Items &items, Make make) {
    Json list = Json::array();
    for (const auto &item : items)
        list.push_back(make(item));
    return list;
}
