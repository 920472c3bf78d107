// How the command writes JSON.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

// Fields stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// On one line. What is no UTF-8, as where a text was cut, becomes replacement characters.
[[nodiscard]] std::string jsonLine(const Json &json);

// An object with a field a line, for people as well as for programs. A list of the field rows, if one is named, has an
// item a line.
[[nodiscard]] std::string jsonFields(const Json &object, const std::string &rows = {});

// What the function makes of each item.
template <typename Items, typename Make>
Json jsonList(const Items &items, Make make) {
    Json list = Json::array();
    for (const auto &item : items)
        list.push_back(make(item));
    return list;
}
