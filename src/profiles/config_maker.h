// Fills a config from its element in a device profile. The walk goes over all descendants of the element, so that an
// element counts wherever it stands below the config.
#pragma once

#include <cstdint>
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

    [[nodiscard]] Config &config() { return m_config; }

private:
    Config &m_config;
};

struct ConfigBitName {
    std::string_view text;
    int32_t value;
};

struct ConfigElementRule {
    using Reader = void (*)(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker);

    std::string_view name;
    int32_t attribute = 0;                       // 0 marks a row that is passed over
    const ConfigElementRule *children = nullptr; // of a group
    int32_t childCount = 0;
    const ConfigBitName *bitNames = nullptr; // of readBits
    int32_t bitNameCount = 0;
    Reader reader = nullptr;
};

// The row of this name among those for elements of a config. An empty row, without a reader, for any other name.
[[nodiscard]] ConfigElementRule findElementRule(std::string_view name);

// Sets the number that the text begins with, after white space; 0 without one.
void readInteger(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker);
// Sets 1 for exactly "EGL_TRUE", else 0: "1" is false too, and profiles rely on it.
void readBoolean(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker);
// Adds the bit of that name. Any other text, numbers too, leaves the attribute as it was: profiles rely on it.
void readBits(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker);
// Reads the first child element of each child row's name.
void readGroup(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker);

} // namespace egl
