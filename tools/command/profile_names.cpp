#include "tools/command/profile_names.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/command/failure.h"
#include "tools/command/nearest.h"
#include "tools/command/own_directory.h"

std::vector<std::string> builtInProfileNames() {
    std::vector<std::string> names;
    for (const std::string_view text : egl::embeddedProfiles)
        names.push_back(egl::profileDisplayName(text));
    return names;
}

std::vector<std::string> fileNames(const std::string &directory) {
    std::vector<std::string> names;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(directory, error))
        names.push_back(entry.path().filename());
    if (error) std::cerr << "zelvane: profiles directory \"" << directory << "\": " << error.message() << '\n';
    std::sort(names.begin(), names.end());
    return names;
}

std::string shippedProfiles() {
    return ownDirectory(desktopProfile, {ZELVANE_INSTALLED_PROFILES, ZELVANE_BUILT_PROFILES});
}

void failForProfile(const std::string &name, const std::string &directory) {
    std::vector<std::string> names = builtInProfileNames();
    if (!directory.empty()) std::ranges::copy(fileNames(directory), std::back_inserter(names));
    const std::string meant = suggestion(name, names);
    failCommand("\"" + name + "\" is not a built-in profile, and " +
                (directory.empty() ? "no profiles directory is set" : "\"" + directory + "\" has no such file") +
                (meant.empty() ? "; \"zelvane profiles\" lists all profiles" : meant));
}

void checkProfileName(const std::string &name, const std::string &directory) {
    egl::DeviceProfile profile;
    const CKZRTString profileName(name.c_str());
    const auto text = egl::findProfileText(CKZRTString(directory.c_str()), profileName);
    if (!text) failForProfile(name, directory);
    if (!readDeviceProfile(profile, *text, profileName)) {
        failCommand("\"" + name + "\" is not a profile; \"zelvane profiles check\" lists the faults of a file");
    }
}
