#include "tools/profiles/profile_list.h"

#include <algorithm>
#include <cstdio>

#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/command/json.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"
#include "tools/profiles/print_profile.h"

namespace {

void addFiles(ProfileList &list) {
    const std::vector<std::string> builtIn = builtInProfileNames();
    for (const std::string &name : fileNames(list.directory)) {
        egl::DeviceProfile profile;
        if (std::ranges::find(builtIn, name) != builtIn.end()) {
            list.profiles.push_back({name, ListedProfile::hiddenFile, {}});
        } else if (loadDeviceProfile(profile, CKZRTString(list.directory.c_str()), CKZRTString(name.c_str()))) {
            list.profiles.push_back({name, ListedProfile::file, profile});
        } else {
            ++list.otherFiles;
        }
    }
}

std::string row(const ListedProfile &listed, bool isInForce) {
    char text[512];
    if (listed.place == ListedProfile::hiddenFile) {
        snprintf(text, sizeof text, "  %-28s  a file that the built-in profile of this name hides\n",
                 listed.name.c_str());
    } else {
        snprintf(text, sizeof text, "%c %-28s  %-14s %7zu  %s\n", isInForce ? '*' : ' ', listed.name.c_str(),
                 versionsText(listed.profile).c_str(), listed.profile.configs.size(),
                 listed.place == ListedProfile::file ? "file" : "built in");
    }
    return text;
}

std::string inForceText(const ProfileList &list) {
    const std::string chosen = '"' + list.chosen + '"';
    if (list.chosen.empty()) return "none; programs get the built-in config and every ES version";
    if (!list.isRead()) return "none; " + chosen + " is chosen, but it is read only when a profiles directory is set";
    if (!list.inForce()) return chosen + ", which cannot be read: EGL fails with EGL_NOT_INITIALIZED";
    return list.chosen;
}

Json jsonRow(const ListedProfile &listed) {
    static constexpr const char *places[] = {"built in", "file", "hidden file"};
    Json json = {{"name", listed.name}, {"where", places[listed.place]}};
    if (listed.place == ListedProfile::hiddenFile) return json;
    json["esVersions"] = jsonList(listed.profile.esVersions, versionName);
    json["configs"] = listed.profile.configs.size();
    return json;
}

} // namespace

const ListedProfile *ProfileList::inForce() const {
    const auto found = std::ranges::find_if(profiles, [this](const ListedProfile &listed) {
        return listed.place != ListedProfile::hiddenFile && listed.name == chosen;
    });
    return isRead() && found != profiles.end() ? &*found : nullptr;
}

ProfileList listProfiles() {
    ToolPreferences preferences;
    ProfileList list{preferences.profilesDirectory(), preferences.currentProfile(), {}};
    for (const std::string_view text : egl::embeddedProfiles) {
        const std::string name = egl::profileDisplayName(text);
        egl::DeviceProfile profile;
        if (readDeviceProfile(profile, text, CKZRTString(name.c_str())))
            list.profiles.push_back({name, ListedProfile::builtIn, profile});
    }
    if (!list.directory.empty()) addFiles(list);
    return list;
}

std::string listAsText(const ProfileList &list) {
    char heading[64];
    snprintf(heading, sizeof heading, "  %-28s  %-14s %7s  %s\n", "name", "es versions", "configs", "where");
    std::string text = heading;
    for (const ListedProfile &listed : list.profiles)
        text += row(listed, &listed == list.inForce());
    if (list.otherFiles > 0)
        text += "\nother files in the profiles directory: " + std::to_string(list.otherFiles) + '\n';
    text += "\nprofiles directory: " + (list.directory.empty() ? "none" : list.directory) + '\n';
    return text + "in force: " + inForceText(list) + '\n';
}

std::string listAsJson(const ProfileList &list) {
    const ListedProfile *inForce = list.inForce();
    return jsonFields({{"profilesDirectory", orNull(list.directory)},
                       {"chosen", orNull(list.chosen)},
                       {"inForce", orNull(inForce ? inForce->name : "")},
                       {"profiles", jsonList(list.profiles, jsonRow)}},
                      "profiles");
}

std::string listAsNames(const ProfileList &list) {
    std::string text;
    for (const ListedProfile &listed : list.profiles) {
        if (listed.place != ListedProfile::hiddenFile) text += listed.name + '\n';
    }
    return text;
}
