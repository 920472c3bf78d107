// Pieces of JSON.
#pragma once

#include <string>
#include <string_view>

// A text in its quotes. What is no UTF-8, as where a text was cut, becomes the replacement character.
[[nodiscard]] std::string jsonText(std::string_view text);

// The items, each made by the function, between "[]" or "{}".
template <typename Items, typename Make>
std::string jsonList(const char *brackets, const Items &items, Make make) {
    std::string text(1, brackets[0]);
    for (const auto &item : items)
        text += (text.size() > 1 ? ", " : "") + make(item);
    return text + brackets[1];
}
