// Arrays of JSON, for the journal and the command. Fields keep the order in which they are written.
#pragma once

#include <nlohmann/json.hpp>

using Json = nlohmann::ordered_json;

// The array of the function's results for the items.
template <typename Items, typename Make>
[[nodiscard]] Json jsonList(const Items &items, Make make) {
    Json list = Json::array();
    for (const auto &item : items)
        list.push_back(make(item));
    return list;
}
