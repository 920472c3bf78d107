#include "common/es_block.h"

#include <tinyxml2.h>

#include <algorithm>
#include <cstdlib>

namespace {

using tinyxml2::XMLElement;

// A block's version may omit the minor number: 2 and 20 are the same.
int fullVersion(const XMLElement &block) {
    const int version = block.IntAttribute("version");
    return version < 10 ? version * 10 : version;
}

const XMLElement *findBlock(const XMLElement &profile, int major, int minor) {
    const int wanted = major * 10 + minor;
    const XMLElement *best = nullptr;
    for (const XMLElement *block = profile.FirstChildElement("es"); block; block = block->NextSiblingElement("es")) {
        const int version = fullVersion(*block);
        if (version / 10 != major) continue;
        if (!best) {
            best = block;
            continue;
        }
        const int found = fullVersion(*best);
        const bool isCloser = found > wanted ? version < found : version > found && version <= wanted;
        if (isCloser) best = block;
    }
    return best;
}

std::string textOf(const XMLElement *element) {
    const char *const text = element ? element->GetText() : nullptr;
    return text ? text : "";
}

void addExtension(EsBlock &result, std::string name) {
    if (name.empty()) return;
    if (!name.starts_with("GL_")) name.insert(0, "GL_");
    if (std::ranges::find(result.extensionNames, name) == result.extensionNames.end()) {
        result.extensionNames.push_back(std::move(name));
    }
}

void addNumber(std::vector<double> &numbers, const std::string &text) {
    char *end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    if (end != text.c_str()) numbers.push_back(number);
}

void addLimit(EsBlock &result, const XMLElement &element) {
    std::vector<double> &numbers = result.limits[element.Name()];
    const XMLElement *child = element.FirstChildElement();
    if (!child) addNumber(numbers, textOf(&element));
    for (; child; child = child->NextSiblingElement())
        addNumber(numbers, textOf(child));
}

} // namespace

std::optional<double> EsBlock::limit(std::string_view element) const {
    const auto found = limits.find(element);
    if (found == limits.end() || found->second.empty()) return std::nullopt;
    return found->second.front();
}

std::optional<EsBlock> readEsBlock(std::string_view profileText, int major, int minor) {
    tinyxml2::XMLDocument document;
    if (document.Parse(profileText.data(), profileText.size()) != tinyxml2::XML_SUCCESS) return std::nullopt;
    const XMLElement *const profile = document.FirstChildElement("profile");
    const XMLElement *const block = profile ? findBlock(*profile, major, minor) : nullptr;
    if (!block) return std::nullopt;

    EsBlock result;
    const XMLElement *const egl = profile->FirstChildElement("egl");
    result.isDesktop = egl && egl->BoolAttribute("host_only");
    result.vendor = textOf(profile->FirstChildElement("vendor"));
    result.renderer = textOf(profile->FirstChildElement("renderer"));
    for (const XMLElement *element = block->FirstChildElement(); element; element = element->NextSiblingElement()) {
        if (std::string_view(element->Name()) == "extension") {
            addExtension(result, textOf(element));
        } else {
            addLimit(result, *element);
        }
    }
    return result;
}
