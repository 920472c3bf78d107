#include "profiles/config_list.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include "foundation/attribute_list.h"
#include "host/pixel_format.h"
#include "profiles/config_sort.h"
#include "profiles/desktop_configs.h"
#include "profiles/standard_choice.h"

namespace egl {

namespace {

constexpr int32_t builtInConfigAttributes[] = {
#define CONFIG_ATTRIBUTE(attribute, value) attribute, value,
#include "profiles/data/built_in_config_attributes.def"
#undef CONFIG_ATTRIBUTE
    EGL_NONE};

// The attributes of the format that is requested from the host: those of the built-in config without its id and
// pixmaps.
std::vector<int32_t> hostProbeAttributes() {
    std::vector<int32_t> list;
    for (const auto &[name, value] : AttributeList(builtInConfigAttributes)) {
        if (name == EGL_CONFIG_ID) continue;
        list.insert(list.end(), {name, name == EGL_SURFACE_TYPE ? EGL_WINDOW_BIT | EGL_PBUFFER_BIT : value});
    }
    list.push_back(EGL_NONE);
    return list;
}

// EGLConfig handles are the ids themselves, negative ones sign-extended.
uint64_t toHandle(int32_t id) {
    return static_cast<uint64_t>(static_cast<int64_t>(id));
}

void *toStored(const Config &config) {
    return reinterpret_cast<void *>(static_cast<intptr_t>(config.attributeOr0(EGL_CONFIG_ID)));
}

} // namespace

ConfigList::ConfigList(const DeviceProfile &profile, uint64_t nativeDisplay, ConfigKind kind) : m_kind(kind) {
    if (kind == ConfigKind::ofDesktop) {
        for (const Config &config : makeDesktopConfigs(profile, nativeDisplay))
            m_configs[toHandle(config.attributeOr0(EGL_CONFIG_ID))] = config;
        m_noConfig = makeConfiglessConfig(m_configs.empty() ? Config() : m_configs.begin()->second, nativeDisplay);
        return;
    }
    for (const Config &config : makeConfigs(makeHostConfig(nativeDisplay), profile))
        m_configs[toHandle(config.attributeOr0(EGL_CONFIG_ID))] = config;
    // If the profile has no config 1, this inserts one without an id and a host format. It stays in the list: callers
    // see it counted, and stored as handle 0.
    m_noConfig = m_configs[1];
    m_noConfig.setAttribute(EGL_CONFIG_ID, 0);
}

void ConfigList::addApi(int32_t bit) {
    const auto addTo = [bit](Config &config) {
        for (const int32_t attribute : {EGL_RENDERABLE_TYPE, EGL_CONFORMANT})
            config.setAttribute(attribute, config.attributeOr0(attribute) | bit);
    };
    for (auto &[handle, config] : m_configs)
        addTo(config);
    addTo(m_noConfig);
}

uint32_t ConfigList::listConfigs(void **out, int32_t size) const {
    if (!out) return configCount();
    int32_t stored = 0;
    for (const auto &[handle, config] : m_configs) {
        if (stored >= size) break;
        out[stored++] = toStored(config);
    }
    return static_cast<uint32_t>(stored);
}

uint32_t ConfigList::chooseConfigs(const int32_t *attributes, void **out, int32_t size, ChoiceAccount *account) const {
    std::vector<Config> matching;
    matching.reserve(m_configs.size());
    const bool isOfDesktop = m_kind == ConfigKind::ofDesktop;
    for (const auto &[handle, config] : m_configs) {
        const auto reason = isOfDesktop ? findFallOutByStandard(config, attributes) : config.findFallOut(attributes);
        if (!reason) matching.push_back(config);
        if (reason && account) account->fallenOut.push_back({config.attributeOr0(EGL_CONFIG_ID), *reason});
    }
    if (!out && !account) return static_cast<uint32_t>(matching.size());
    if (isOfDesktop) {
        sortByStandard(matching, attributes);
    } else {
        sortConfigs(matching, ConfigSortOrder(attributes));
    }
    if (account) tellOrder(matching, attributes, *account);
    if (!out) return static_cast<uint32_t>(matching.size());
    int32_t stored = 0;
    for (const Config &config : matching) {
        if (stored >= size) break;
        out[stored++] = toStored(config);
    }
    return static_cast<uint32_t>(stored);
}

void ConfigList::tellOrder(const std::vector<Config> &sorted, const int32_t *attributes, ChoiceAccount &account) const {
    for (const Config &config : sorted)
        account.order.push_back(config.attributeOr0(EGL_CONFIG_ID));
    const ConfigSortOrder order(attributes);
    for (size_t i = 1; i < sorted.size(); ++i) {
        account.comparisons.push_back(m_kind == ConfigKind::ofDesktop
                                          ? compareByStandard(sorted[i - 1], sorted[i], attributes)
                                          : order.compare(sorted[i - 1], sorted[i]));
    }
}

const Config *ConfigList::findConfig(uint64_t handle) const {
    const auto found = m_configs.find(handle);
    return found != m_configs.end() ? &found->second : nullptr;
}

std::shared_ptr<osx::Config> makeHostConfig(uint64_t nativeDisplay) {
    const Config probe(nullptr, hostProbeAttributes().data());
    return std::make_shared<osx::Config>(host::makeHostPixelFormat(formatRequest(probe, nativeDisplay)));
}

host::PixelFormatRequest formatRequest(const Config &config, uint64_t nativeDisplay) {
    return {
        .display = nativeDisplay,
        .hasWindowBit = (config.attributeOr0(EGL_SURFACE_TYPE) & EGL_WINDOW_BIT) != 0,
        .redSize = config.attributeOr0(EGL_RED_SIZE),
        .greenSize = config.attributeOr0(EGL_GREEN_SIZE),
        .blueSize = config.attributeOr0(EGL_BLUE_SIZE),
        .alphaSize = config.attributeOr0(EGL_ALPHA_SIZE),
        .depthSize = config.attributeOr0(EGL_DEPTH_SIZE),
        .stencilSize = config.attributeOr0(EGL_STENCIL_SIZE),
        .sampleBuffers = config.attributeOr0(EGL_SAMPLE_BUFFERS),
        .samples = config.attributeOr0(EGL_SAMPLES),
    };
}

std::vector<Config> makeConfigs(const std::shared_ptr<osx::Config> &hostConfig, const DeviceProfile &profile) {
    if (!hostConfig) return {};
    if (isDefaultProfile(profile)) return {Config(hostConfig, builtInConfigAttributes)};
    std::vector<Config> configs;
    configs.reserve(profile.configs.size());
    for (const Config &config : profile.configs)
        configs.emplace_back(hostConfig, config.toAttributeList().data());
    return configs;
}

} // namespace egl
