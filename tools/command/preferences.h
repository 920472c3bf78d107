// The user's preferences file for the verbs: the same settings that the library reads.
#pragma once

#include <string>

#include "preferences/property_list_store.h"

class ToolPreferences {
public:
    // Reads the file, creating it if there is none. Fails the verb when it cannot be read completely: writing it back
    // would lose what follows the error.
    ToolPreferences();
    // The same, but a failure sets error. Then only path() may be called.
    explicit ToolPreferences(std::string &error);

    [[nodiscard]] std::string storedDirectory();
    // The directory that the library would use: the stored one, else $ZELVANE_PROFILE_PATH. Empty without both.
    [[nodiscard]] std::string profilesDirectory();
    // The stored name; the library reads the profile only if there is a directory.
    [[nodiscard]] std::string currentProfile();
    [[nodiscard]] bool isStrict();

    // Each of these writes the file; other keys are unchanged. A failure fails the verb.
    void setProfile(const std::string &directory, const std::string &name);
    void setDirectory(const std::string &directory);
    void removeProfile();
    void setStrict(bool strict);

    [[nodiscard]] const std::string &path() const { return m_path; } // empty until it is determined

private:
    // Returns the reason for a failure.
    [[nodiscard]] std::string read();
    void storeString(const char *name, const std::string &value);
    void save();

    KZRPreferences m_store;
    std::string m_path;
};
