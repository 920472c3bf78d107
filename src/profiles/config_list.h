// The configs of one initialised display. Not synchronised: the display's lock guards every call.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "host/pixel_format.h"
#include "profiles/config.h"
#include "profiles/device_profile.h"

namespace egl {

// The host formats of the configs, and the rules by which configs are chosen.
enum class ConfigKind {
    ofDevice,  // one format for all, and the rules of the device
    ofDesktop, // a format for each, attributes that depend on the host, and the rules of the EGL standard
};

class ConfigList {
public:
    // Requests formats from the platform on the display with this host value. Without a format the list is still
    // created, and the creation of contexts fails.
    ConfigList(const DeviceProfile &profile, uint64_t nativeDisplay, ConfigKind kind = ConfigKind::ofDevice);
    ConfigList(const ConfigList &) = delete;
    ConfigList &operator=(const ConfigList &) = delete;

    // Adds a bit of EGL_RENDERABLE_TYPE to that attribute and to EGL_CONFORMANT of all configs.
    void addApi(int32_t bit);

    [[nodiscard]] uint32_t configCount() const { return static_cast<uint32_t>(m_configs.size()); }
    // Both store EGL_CONFIG_ID values, sign-extended, and return how many. With a null out they return the total number
    // and ignore size.
    uint32_t listConfigs(void **out, int32_t size) const;
    // account: receives the reasons, recorded by the same comparisons. Null if they are not needed.
    uint32_t chooseConfigs(const int32_t *attributes, void **out, int32_t size, ChoiceAccount *account = nullptr) const;
    // By map key. Null for an unknown handle. Valid as long as the list.
    [[nodiscard]] const Config *findConfig(uint64_t handle) const;
    // Used for a null config: a copy of config 1 with the id 0.
    [[nodiscard]] const Config &noConfig() const { return m_noConfig; }

private:
    void tellOrder(const std::vector<Config> &sorted, const int32_t *attributes, ChoiceAccount &account) const;

    const ConfigKind m_kind;
    std::map<uint64_t, Config> m_configs;
    Config m_noConfig;
};

// One format for all configs, whatever their attributes are. Never null; the format inside may be.
[[nodiscard]] std::shared_ptr<osx::Config> makeHostConfig(uint64_t nativeDisplay);
// The attributes requested from the host for a config.
[[nodiscard]] host::PixelFormatRequest formatRequest(const Config &config, uint64_t nativeDisplay);
// Empty without a host config.
[[nodiscard]] std::vector<Config> makeConfigs(const std::shared_ptr<osx::Config> &hostConfig,
                                              const DeviceProfile &profile);

} // namespace egl
