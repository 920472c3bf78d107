#include "profiles/config_maker.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace egl {

namespace {

std::string_view textOf(const tinyxml2::XMLElement &element) {
    const char *text = element.GetText();
    return text ? text : "";
}

constexpr ConfigBitName apiBits[] = {
    {"EGL_OPENGL_ES_BIT", EGL_OPENGL_ES_BIT},
    {"EGL_OPENGL_ES2_BIT", EGL_OPENGL_ES2_BIT},
    {"EGL_OPENGL_ES3_BIT_KHR", EGL_OPENGL_ES3_BIT_KHR},
    {"EGL_OPENGL_BIT", EGL_OPENGL_BIT},
};

constexpr ConfigBitName surfaceBits[] = {
    {"EGL_WINDOW_BIT", EGL_WINDOW_BIT},
    {"EGL_PBUFFER_BIT", EGL_PBUFFER_BIT},
    {"EGL_PIXMAP_BIT", EGL_PIXMAP_BIT},
};

constexpr std::string_view maxPbuffer[] = {"width", "height", "pixels"};
constexpr std::string_view swapInterval[] = {"min", "max"};
constexpr std::string_view transparency[] = {"type", "blue", "green", "red"};

constexpr ConfigElementRule elementRules[] = {
#define CONFIG_ELEMENT(name, attribute, reader) {#name, attribute, reader},
#define CONFIG_BITS(name, attribute, bits) {#name, attribute, readBits, bits},
#define CONFIG_GROUP(name, children) {#name, 0, nullptr, {}, children},
#include "profiles/data/config_elements.def"
#undef CONFIG_ELEMENT
#undef CONFIG_BITS
#undef CONFIG_GROUP
};

} // namespace

bool ConfigMaker::VisitEnter(const tinyxml2::XMLElement &element, const tinyxml2::XMLAttribute *) {
    const ConfigElementRule *const rule = findElementRule(element.Name());
    if (rule && rule->reader) rule->reader(*rule, element, m_config);
    return true;
}

const ConfigElementRule *findElementRule(std::string_view name) {
    const auto rule = std::ranges::find(elementRules, name, &ConfigElementRule::name);
    return rule == std::end(elementRules) ? nullptr : rule;
}

void readInteger(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config) {
    // A number that is too large keeps its low 32 bits.
    const auto value = static_cast<int32_t>(strtol(textOf(element).data(), nullptr, 10));
    config.setAttribute(rule.attribute, value);
}

void readBoolean(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config) {
    config.setAttribute(rule.attribute, textOf(element) == "EGL_TRUE");
}

void readBits(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, Config &config) {
    const std::string_view text = textOf(element);
    for (const ConfigBitName &bit : rule.bitNames) {
        if (text == bit.text) config.setAttribute(rule.attribute, config.attributeOr0(rule.attribute) | bit.value);
    }
}

} // namespace egl
