// Fills a config from its element in a device profile. The walk goes over all descendants of the element, so that an
// element counts wherever it stands below the config.
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
    Reader reader = nullptr;                         // null for a group, which is passed over
    std::span<const ConfigBitName> bitNames = {};    // of readBits
    std::span<const std::string_view> children = {}; // of a group: the elements that profiles have in it
};

// The row of this name among those for elements of a config. Null for any other name.
[[nodiscard]] const ConfigElementRule *findElementRule(std::string_view name);

// Sets the number that the text begins with, after white space; 0 without one.
void readInteger(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);
// Sets 1 for exactly "EGL_TRUE", else 0: "1" is false too.
void readBoolean(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);
// Adds the bit of that name. Any other text, numbers too, leaves the attribute as it was.
void readBits(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config);

} // namespace egl
