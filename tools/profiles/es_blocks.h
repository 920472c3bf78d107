// The es blocks of a profile as they are written: names and values as texts.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tinyxml2 {
class XMLElement;
}

// Holds what a capture reports of a device and no profile needs. Not a limit.
inline constexpr char capturedElement[] = "captured";

struct EsBlockText {
    std::string version; // empty without the attribute
    std::vector<std::string> extensions;
    // By the first place of the name. A repeated element has several values; one with children has "min 1 max 16".
    std::vector<std::pair<std::string, std::vector<std::string>>> limits;
};

[[nodiscard]] std::vector<EsBlockText> readEsBlocks(const tinyxml2::XMLElement &profile);

// Without white space at its ends. Empty for an element without a text.
[[nodiscard]] std::string elementText(const tinyxml2::XMLElement &element);
