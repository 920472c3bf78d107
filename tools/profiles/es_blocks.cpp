#include "tools/profiles/es_blocks.h"

#include <tinyxml2.h>

#include <algorithm>

namespace {

using tinyxml2::XMLElement;

std::string valueOf(const XMLElement &element) {
    std::string value = elementText(element);
    for (auto *child = element.FirstChildElement(); child; child = child->NextSiblingElement())
        value += (value.empty() ? "" : " ") + std::string(child->Name()) + " " + elementText(*child);
    return value;
}

EsBlockText readBlock(const XMLElement &element) {
    const char *version = element.Attribute("version");
    EsBlockText block{version ? version : "", {}, {}};
    for (auto *child = element.FirstChildElement(); child; child = child->NextSiblingElement()) {
        const std::string name = child->Name();
        if (name == "extension") block.extensions.push_back(elementText(*child));
        if (name == "extension" || name == capturedElement) continue;
        auto limit = std::ranges::find(block.limits, name, [](const auto &known) { return known.first; });
        if (limit == block.limits.end()) limit = block.limits.insert(limit, {name, {}});
        limit->second.push_back(valueOf(*child));
    }
    return block;
}

} // namespace

std::vector<EsBlockText> readEsBlocks(const XMLElement &profile) {
    std::vector<EsBlockText> blocks;
    for (auto *block = profile.FirstChildElement("es"); block; block = block->NextSiblingElement("es"))
        blocks.push_back(readBlock(*block));
    return blocks;
}

std::string elementText(const XMLElement &element) {
    const char *text = element.GetText();
    const std::string_view all = text ? text : "";
    constexpr char blanks[] = " \t\r\n";
    const size_t first = all.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(all.substr(first, all.find_last_not_of(blanks) - first + 1));
}
