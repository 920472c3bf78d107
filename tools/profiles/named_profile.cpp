#include "tools/profiles/named_profile.h"

#include <filesystem>

#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"
#include "tools/command/text_file.h"

namespace fs = std::filesystem;

namespace {

bool isFile(const fs::path &path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// The path of the file, for a name that is not built in.
fs::path fileOf(const std::string &name) {
    const std::string directory = ToolPreferences().profilesDirectory();
    if (!directory.empty() && isFile(fs::path(directory) / name)) return fs::path(directory) / name;
    if (name == desktopProfile) return fs::path(shippedProfiles()) / name;
    if (!isFile(name)) failForProfile(name, directory);
    return name;
}

std::string textOf(const std::string &nameOrFile) {
    if (nameOrFile.find('/') != std::string::npos) return readTextFile(nameOrFile);
    const std::string embedded(egl::findEmbeddedProfile(nameOrFile));
    return embedded.empty() ? readTextFile(fileOf(nameOrFile)) : embedded;
}

} // namespace

NamedProfile readNamedProfile(const std::string &nameOrFile) {
    NamedProfile found{nameOrFile, textOf(nameOrFile), {}};
    if (!readDeviceProfile(found.profile, found.text, CKZRTString(nameOrFile.c_str())))
        failCommand("\"" + nameOrFile + "\" is not a profile; \"zelvane profiles check\" lists the faults of a file");
    return found;
}
