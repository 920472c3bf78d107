#include "tools/command/preferences.h"

#include <tinyxml2.h>

#include "foundation/paths.h"
#include "foundation/product.h"
#include "preferences/settings.h"
#include "tools/command/failure.h"

ToolPreferences::ToolPreferences() : m_store(productName) {
    const std::string error = read();
    if (!error.empty()) failCommand(error);
}

ToolPreferences::ToolPreferences(std::string &error) : m_store(productName) {
    error = read();
}

std::string ToolPreferences::read() {
    const std::string unreadable = "the preferences cannot be read: ";
    std::string reason;
    KZRPreferencesUnix files;
    const PreferenceFile file = files.openPreferenceFile(productName, readPreferences, false, false, reason);
    m_path = file.path;
    if (!file.stream) return unreadable + reason;
    tinyxml2::XMLDocument document;
    document.LoadFile(file.stream);
    files.closePreferenceFile(file, false);
    if (!m_store.load(reason, false)) return unreadable + reason;
    return document.Error() ? "\"" + m_path + "\" is not well-formed XML: " + document.ErrorStr() : "";
}

std::string ToolPreferences::storedDirectory() {
    std::string directory;
    m_store.getString(settingKey("profiles_directory"), &directory, std::string());
    return directory;
}

std::string ToolPreferences::profilesDirectory() {
    std::string directory = storedDirectory();
    if (directory.empty() && !getProfilePathFromEnvironment(directory)) return {};
    return directory;
}

std::string ToolPreferences::currentProfile() {
    std::string name;
    m_store.getString(settingKey("current_profile"), &name, std::string());
    return name;
}

bool ToolPreferences::isStrict() {
    bool strict = false;
    m_store.getBool(settingKey("strict_context_mode"), &strict, false);
    return strict;
}

void ToolPreferences::setProfile(const std::string &directory, const std::string &name) {
    storeString("profiles_directory", directory);
    storeString("current_profile", name);
    save();
}

void ToolPreferences::setDirectory(const std::string &directory) {
    storeString("profiles_directory", directory);
    save();
}

void ToolPreferences::removeProfile() {
    m_store.remove(settingKey("current_profile"));
    save();
}

void ToolPreferences::setStrict(bool strict) {
    m_store.setBool(settingKey("strict_context_mode"), strict);
    if (isStrict() != strict) failCommand("strict_context_mode cannot be set in \"" + m_path + "\"");
    save();
}

void ToolPreferences::storeString(const char *name, const std::string &value) {
    // A dict or an array cannot be replaced by a text, and the store does not report an error.
    std::string stored;
    m_store.setString(settingKey(name), value);
    m_store.getString(settingKey(name), &stored, std::string());
    if (stored != value) failCommand(std::string(name) + " cannot be set in \"" + m_path + "\"");
}

void ToolPreferences::save() {
    // Forced, since a removal does not count as a change.
    if (!m_store.save(true)) failCommand("\"" + m_path + "\" cannot be written");
}
