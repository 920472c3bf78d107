// Fills a config from its element in a device profile. All descendants of the element are read, so that an element
// counts at any depth below the config.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include <tinyxml2.h>

#include "profiles/config.h"

namespace egl {

class ConfigMaker : public tinyxml2::XMLVisitor {
public:
    // The config must outlive the maker.
    explicit ConfigMaker(Config &config) : m_config(config) {}

    bool VisitEnter(const tinyxml2::XMLElement &element, const tinyxml2::XMLAttribute *attribute) override;
    using tinyxml2::XMLVisitor::VisitEnter;

private:
    Config &m_config;
};

struct ConfigBitName {
    std::string_view text;
    int32_t value;
};

struct ConfigElementRule {
    using Reader = void (*)(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);

    std::string_view name;
    int32_t attribute = 0;
    Reader reader = nullptr;                         // null for a group, which is ignored itself
    std::span<const ConfigBitName> bitNames = {};    // for readBits
    std::span<const std::string_view> children = {}; // for a group: the elements that profiles put in it
};

// The table row for a config's child element of this name. Null for any other name.
[[nodiscard]] const ConfigElementRule *findElementRule(std::string_view name);

// Sets the number at the start of the text, after white space; 0 without one.
void readInteger(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);
// Sets 1 for exactly "EGL_TRUE", otherwise 0: "1" is false too.
void readBoolean(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);
// Adds the bit of that name. Any other text, numbers too, leaves the attribute unchanged.
void readBits(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);

} // namespace egl
