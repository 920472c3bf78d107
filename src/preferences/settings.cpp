#include "preferences/settings.h"

#include "foundation/paths.h"
#include "foundation/product.h"
#include "preferences/host_configuration.h"

std::string settingKey(const char *name) {
    return std::string(productName) + " " + productVersion + "/" + name;
}

Settings::Settings() : KZRPreferences(productName) {}

bool Settings::load(std::string &error) {
    if (!KZRPreferences::load(error, true)) return false;

    const std::string directoryKey = settingKey("profiles_directory");
    getString(directoryKey, &m_profilesDirectory, std::string());
    // The variable sets the initial value only; afterwards the file decides.
    if (m_profilesDirectory.empty() && getProfilePathFromEnvironment(m_profilesDirectory)) {
        setString(directoryKey, m_profilesDirectory);
        save(true);
    }
    if (!m_profilesDirectory.empty() && !(getHostConfiguration() & CONFIG_IGNORE_CURRENT_PROFILE)) {
        getString(settingKey("current_profile"), &m_currentProfile, std::string());
    }
    getBool(settingKey("strict_context_mode"), &m_strictContextMode, false);
    getBool(settingKey("radeon_hd_hack"), &m_radeonHdHack, false);
    m_loaded = true;
    return true;
}
