#include "profiles/config.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include "foundation/attribute_list.h"

namespace egl {

namespace {

constexpr int32_t attributeDefaults[] = {
#define CONFIG_ATTRIBUTE(attribute, value) attribute, value,
#include "profiles/data/attribute_defaults.def"
#undef CONFIG_ATTRIBUTE
    EGL_NONE};

} // namespace

Config::Config() {
    setAttributes(attributeDefaults);
}

Config::Config(std::shared_ptr<osx::Config> hostConfig, const int32_t *attributes)
    : m_hostConfig(std::move(hostConfig)) {
    setAttributes(attributeDefaults);
    setAttributes(attributes);
}

bool Config::operator==(const Config &other) const {
    return m_attributes == other.m_attributes && m_hostConfig == other.m_hostConfig;
}

bool Config::operator<(const Config &other) const {
    return attributeOr0(EGL_CONFIG_ID) < other.attributeOr0(EGL_CONFIG_ID);
}

bool Config::getAttribute(int32_t attribute, int32_t *value) const {
    const auto found = m_attributes.find(attribute);
    if (found == m_attributes.end()) return false;
    *value = found->second;
    return true;
}

int32_t Config::attributeOr0(int32_t attribute) const {
    int32_t value = 0;
    return getAttribute(attribute, &value) ? value : 0;
}

void Config::setAttribute(int32_t attribute, int32_t value) {
    m_attributes[attribute] = value;
}

void Config::setAttributes(const int32_t *attributes) {
    for (const auto &[name, value] : AttributeList(attributes))
        setAttribute(name, value);
}

std::vector<int32_t> Config::toAttributeList() const {
    std::vector<int32_t> list;
    list.reserve(2 * m_attributes.size() + 1);
    for (const auto &[attribute, value] : m_attributes)
        list.insert(list.end(), {attribute, value});
    list.push_back(EGL_NONE);
    return list;
}

bool Config::supportsClientVersion(int32_t major) const {
    const int32_t renderable = attributeOr0(EGL_RENDERABLE_TYPE);
    switch (major) {
    case 1:
        return renderable & EGL_OPENGL_ES_BIT;
    case 2:
        return renderable & EGL_OPENGL_ES2_BIT;
    case 3:
        return renderable & EGL_OPENGL_ES3_BIT_KHR;
    default:
        return false;
    }
}

} // namespace egl
