#include "profiles/desktop_configs.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include "profiles/config_list.h"

namespace egl {

namespace {

using namespace host::platform;

struct HostFact {
    int32_t attribute;
    PixelFormatAttribute value;
};

constexpr HostFact hostFacts[] = {
    {EGL_NATIVE_VISUAL_ID, NativeVisualId},     {EGL_MAX_SWAP_INTERVAL, MaxSwapInterval},
    {EGL_MAX_PBUFFER_WIDTH, MaxPbufferWidth},   {EGL_MAX_PBUFFER_HEIGHT, MaxPbufferHeight},
    {EGL_MAX_PBUFFER_PIXELS, MaxPbufferPixels},
};

void addHostFacts(Config &config, const PixelFormat *format) {
    for (const HostFact &fact : hostFacts)
        config.setAttribute(fact.attribute, operations.pixelFormatValue(format, fact.value));
    const int32_t visualType = operations.pixelFormatValue(format, NativeVisualType);
    config.setAttribute(EGL_NATIVE_VISUAL_TYPE, visualType ? visualType : EGL_NONE);
    config.setAttribute(EGL_MIN_SWAP_INTERVAL, 0);
    config.setAttribute(EGL_COLOR_COMPONENT_TYPE_EXT, EGL_COLOR_COMPONENT_TYPE_FIXED_EXT);
    // The host decides whether surfaces can preserve their contents.
    const int32_t hostTypes = operations.pixelFormatValue(format, DrawableTypes);
    const int32_t types = config.attributeOr0(EGL_SURFACE_TYPE) & (EGL_WINDOW_BIT | EGL_PBUFFER_BIT | EGL_PIXMAP_BIT);
    config.setAttribute(EGL_SURFACE_TYPE, (types & hostTypes) | (hostTypes & EGL_SWAP_BEHAVIOR_PRESERVED_BIT));
}

} // namespace

std::vector<Config> makeDesktopConfigs(const DeviceProfile &profile, uint64_t nativeDisplay) {
    std::vector<Config> configs;
    for (const Config &wanted : makeConfigs(std::make_shared<osx::Config>(nullptr), profile)) {
        auto *format = host::makeFittingPixelFormat(formatRequest(wanted, nativeDisplay), profile.hasConfigsOfHostOnly);
        if (!format && profile.hasConfigsOfHostOnly) continue;
        Config config(std::make_shared<osx::Config>(format, true), wanted.toAttributeList().data());
        if (format) addHostFacts(config, format);
        configs.push_back(config);
    }
    return configs;
}

Config makeConfiglessConfig(const Config &first, uint64_t nativeDisplay) {
    auto *format = host::makeConfiglessPixelFormat(nativeDisplay);
    Config config(std::make_shared<osx::Config>(format), first.toAttributeList().data());
    config.setAttribute(EGL_CONFIG_ID, 0);
    return config;
}

} // namespace egl
