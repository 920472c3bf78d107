#include "tools/run/private_preferences.h"

#include <cstdlib>
#include <filesystem>

#include "foundation/product.h"
#include "preferences/preference_file.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"

namespace fs = std::filesystem;

namespace {

// Creates an empty file if the user has none.
void copyPreferences(const std::string &directory) {
    KZRPreferencesUnix files;
    std::string usersDirectory, error;
    if (!files.getPreferenceDirectory(usersDirectory, false)) failCommand("there is no home directory");
    setenv("ZELVANE_PREFERENCES_DIRECTORY", directory.c_str(), 1);

    const PreferenceFile copy = files.openPreferenceFile(productName, readPreferences, false, false, error);
    files.closePreferenceFile(copy, false);
    if (!copy.stream) failCommand(error);
    const fs::path original = fs::path(usersDirectory) / fs::path(copy.path).filename();
    std::error_code failure;
    if (!fs::exists(original, failure)) return;
    fs::copy_file(original, copy.path, fs::copy_options::overwrite_existing, failure);
    if (failure) failCommand("\"" + original.string() + "\" cannot be copied: " + failure.message());
    fs::permissions(copy.path, fs::perms::owner_write, fs::perm_options::add, failure);
}

} // namespace

PrivatePreferences::PrivatePreferences(const Wishes &wishes) {
    copyPreferences(m_directory.path());
    settleDevice(wishes.device, m_directory.path());
    if (wishes.strict) ToolPreferences().setStrict(*wishes.strict);
}
