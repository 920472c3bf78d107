// The library's view of the preferences file. Loaded under the process lock, read without a lock afterwards.
#pragma once

#include <cstdint>
#include <string>

#include "preferences/property_list_store.h"

// The path of a setting in the store. All settings are in the section of this version.
[[nodiscard]] std::string settingKey(const char *name);

class Settings : public KZRPreferences {
public:
    // Does not access the file.
    Settings();

    // Reads the file, creating it if there is none. False, with the reason appended to error, when it cannot be
    // read or created; a key that is missing or of a wrong type leaves its default.
    [[nodiscard]] bool load(std::string &error);

    [[nodiscard]] bool isLoaded() const { return m_loaded; }
    [[nodiscard]] const std::string &getCurrentProfile() const { return m_currentProfile; }
    [[nodiscard]] const std::string &getProfilesDirectory() const { return m_profilesDirectory; }
    [[nodiscard]] bool getStrictContextMode() const { return m_strictContextMode; }
    [[nodiscard]] bool getRadeonHdHack() const { return m_radeonHdHack; }

private:
    bool m_loaded = false;
    std::string m_currentProfile;
    std::string m_profilesDirectory;
    bool m_strictContextMode = false;
    bool m_radeonHdHack = false; // has no effect; kept so that the key keeps a meaning
};
