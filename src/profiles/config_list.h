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

// What stands behind the configs on the host, and by which rules they are chosen.
enum class ConfigKind {
    ofDevice,  // one format for all, and the rules of the device
    ofDesktop, // a format for each, what only the host can tell, and the rules of the EGL standard
};

class ConfigList {
public:
    // Asks the platform for formats on the display with this host word. A host without one gives a list all the same;
    // the failure shows when a context is made.
    ConfigList(const DeviceProfile &profile, uint64_t nativeDisplay, ConfigKind kind = ConfigKind::ofDevice);
    ConfigList(const ConfigList &) = delete;
    ConfigList &operator=(const ConfigList &) = delete;

    [[nodiscard]] uint32_t configCount() const { return static_cast<uint32_t>(m_configs.size()); }
    // Both store EGL_CONFIG_ID values, sign-extended, and return how many. A null out returns the number there are
    // and does not look at size.
    uint32_t listConfigs(void **out, int32_t size) const;
    // account: filled with the reasons, which are those of the very same comparisons. Null where nobody asks.
    uint32_t chooseConfigs(const int32_t *attributes, void **out, int32_t size, ChoiceAccount *account = nullptr) const;
    // By map key. Null for an unknown handle. Valid as long as the list.
    [[nodiscard]] const Config *findConfig(uint64_t handle) const;
    // Stands for a null config: a copy of config 1 with the id 0.
    [[nodiscard]] const Config &noConfig() const { return m_noConfig; }

private:
    void tellOrder(const std::vector<Config> &sorted, const int32_t *attributes, ChoiceAccount &account) const;

    const ConfigKind m_kind;
    std::map<uint64_t, Config> m_configs;
    Config m_noConfig;
};

// One format for all configs, whatever they say themselves. Never null; the format inside may be.
[[nodiscard]] std::shared_ptr<osx::Config> makeHostConfig(uint64_t nativeDisplay);
// What the host is to be asked for on behalf of a config.
[[nodiscard]] host::PixelFormatRequest formatRequest(const Config &config, uint64_t nativeDisplay);
// Empty without a host config.
[[nodiscard]] std::vector<Config> makeConfigs(const std::shared_ptr<osx::Config> &hostConfig,
                                              const DeviceProfile &profile);

} // namespace egl
