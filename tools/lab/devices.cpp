#include "tools/lab/devices.h"

#include <algorithm>
#include <sstream>

#include "tools/command/failure.h"
#include "tools/command/nearest.h"
#include "tools/command/profile_names.h"
#include "tools/profiles/profile_list.h"

std::vector<std::string> allDevices() {
    std::vector<std::string> names = {desktopProfile};
    for (const ListedProfile &listed : listProfiles().profiles)
        if (listed.place != ListedProfile::hiddenFile && listed.name != desktopProfile) names.push_back(listed.name);
    return names;
}

std::vector<std::string> readDevices(const std::string &names) {
    const std::vector<std::string> known = allDevices();
    std::vector<std::string> devices;
    std::istringstream list(names);
    for (std::string name; std::getline(list, name, ',');) {
        if (std::ranges::find(known, name) == known.end())
            failCommand("there is no device \"" + name + '"' + suggestion(name, known));
        if (std::ranges::find(devices, name) == devices.end()) devices.push_back(name);
    }
    if (devices.empty()) failCommand("no device is given");
    return devices;
}
