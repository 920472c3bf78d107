// The es blocks of a profile as text: names and values.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tinyxml2 {
class XMLElement;
}

// Below a config, egl or es: what a capture reports of a device and profiles have no place for. Nothing reads it.
inline constexpr std::string_view capturedElement = "captured";

struct EsBlockText {
    std::string version; // empty without the attribute
    std::vector<std::string> extensions;
    // In the order of the first occurrence. A repeated element has several values; one with children has "min 1 max
    // 16".
    std::vector<std::pair<std::string, std::vector<std::string>>> limits;
};

[[nodiscard]] std::vector<EsBlockText> readEsBlocks(const tinyxml2::XMLElement &profile);

// Trimmed. Empty for an element without a text.
[[nodiscard]] std::string elementText(const tinyxml2::XMLElement &element);
