#include "profiles/config_maker.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

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

constexpr ConfigElementRule childRule(std::string_view name, int32_t attribute) {
    return {.name = name, .attribute = attribute, .reader = readInteger};
}

constexpr ConfigElementRule maxPbuffer[] = {
    childRule("width", EGL_MAX_PBUFFER_WIDTH),
    childRule("height", EGL_MAX_PBUFFER_HEIGHT),
    childRule("pixels", EGL_MAX_PBUFFER_PIXELS),
};

constexpr ConfigElementRule swapInterval[] = {
    childRule("min", EGL_MIN_SWAP_INTERVAL),
    childRule("max", EGL_MAX_SWAP_INTERVAL),
};

constexpr ConfigElementRule transparency[] = {
    childRule("type", EGL_TRANSPARENT_TYPE),
    childRule("blue", EGL_TRANSPARENT_BLUE_VALUE),
    childRule("green", EGL_TRANSPARENT_GREEN_VALUE),
    childRule("red", EGL_TRANSPARENT_RED_VALUE),
};

constexpr ConfigElementRule elementRules[] = {
#define CONFIG_ELEMENT(name, attribute, reader) {#name, attribute, nullptr, 0, nullptr, 0, reader},
#define CONFIG_BITS(name, attribute, bits) {#name, attribute, nullptr, 0, bits, std::size(bits), readBits},
#define CONFIG_GROUP(name, children) {#name, 0, children, std::size(children), nullptr, 0, readGroup},
#include "profiles/data/config_elements.def"
#undef CONFIG_ELEMENT
#undef CONFIG_BITS
#undef CONFIG_GROUP
};

} // namespace

bool ConfigMaker::VisitEnter(const tinyxml2::XMLElement &element, const tinyxml2::XMLAttribute *) {
    const ConfigElementRule rule = findElementRule(element.Name());
    if (rule.attribute != 0) rule.reader(rule, element, *this);
    return true;
}

ConfigElementRule findElementRule(std::string_view name) {
    for (const ConfigElementRule &rule : elementRules) {
        if (rule.name == name) return rule;
    }
    return {};
}

void readInteger(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker) {
    // A number too large keeps its low 32 bits.
    const auto value = static_cast<int32_t>(strtol(textOf(element).data(), nullptr, 10));
    maker.config().setAttribute(rule.attribute, value);
}

void readBoolean(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker) {
    maker.config().setAttribute(rule.attribute, textOf(element) == "EGL_TRUE");
}

void readBits(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker) {
    const std::string_view text = textOf(element);
    for (int32_t i = 0; i < rule.bitNameCount; ++i) {
        if (text != rule.bitNames[i].text) continue;
        const int32_t bits = maker.config().attributeOr0(rule.attribute);
        maker.config().setAttribute(rule.attribute, bits | rule.bitNames[i].value);
    }
}

void readGroup(const ConfigElementRule &rule, const tinyxml2::XMLElement &element, ConfigMaker &maker) {
    for (int32_t i = 0; i < rule.childCount; ++i) {
        const ConfigElementRule &child = rule.children[i];
        const auto *found = element.FirstChildElement(std::string(child.name).c_str());
        if (found) child.reader(child, *found, maker);
    }
}

} // namespace egl
