// The preferences file, the profile that it selects, and the variables that change it.
#include <cstdlib>
#include <filesystem>

#include "profiles/profile_reader.h"
#include "tools/command/preferences.h"
#include "tools/doctor/diagnosis.h"

namespace {

Json setVariables() {
    Json variables = Json::object();
    for (const char *name : {"LD_LIBRARY_PATH", "LD_PRELOAD", "LIBGL_ALWAYS_SOFTWARE", "ZELVANE_DESKTOP_CLIENTS",
                             "ZELVANE_JOURNAL", "ZELVANE_PREFERENCES_DIRECTORY", "ZELVANE_PROFILE_PATH"}) {
        if (const char *value = getenv(name)) variables[name] = value;
    }
    return variables;
}

// As in the library, an embedded profile needs no file, and no profile is read without a directory.
void examineProfile(Diagnosis &diagnosis, Json &facts, const std::string &name, const std::string &directory) {
    facts["chosenProfile"] = orNull(name);
    facts["profileInForce"] = nullptr;
    if (name.empty()) return;
    egl::DeviceProfile profile;
    if (directory.empty()) {
        return diagnosis.add("the profile \"" + name + "\" is chosen, but none is read while no directory is set",
                             "zelvane use \"" + name + "\"");
    }
    if (!loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(name.c_str()))) {
        return diagnosis.add("the profile \"" + name + "\" cannot be read: EGL fails with EGL_NOT_INITIALIZED",
                             "zelvane profiles check \"" + directory + '/' + name + "\", or zelvane use --none");
    }
    facts["profileInForce"] = name;
}

} // namespace

void examinePreferences(Diagnosis &diagnosis) {
    Json &facts = diagnosis.facts["preferences"] = Json::object();
    std::string error;
    ToolPreferences preferences(error);
    facts["file"] = orNull(preferences.path());
    facts["variables"] = setVariables();
    if (!error.empty()) {
        const std::string &path = preferences.path();
        std::error_code failure;
        const bool isThere = std::filesystem::exists(path, failure);
        return diagnosis.add(error, isThere ? "mv \"" + path + "\" \"" + path + ".broken\""
                                            : "make the directory writable, or set ZELVANE_PREFERENCES_DIRECTORY");
    }
    const std::string directory = preferences.profilesDirectory();
    facts["profilesDirectory"] = orNull(directory);
    examineProfile(diagnosis, facts, preferences.currentProfile(), directory);
    facts["isStrict"] = preferences.isStrict();
}
