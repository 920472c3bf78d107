#include "tools/explain/explanation.h"

#include "foundation/attribute_list.h"
#include "profiles/egl_names.h"
#include "profiles/profile_reader.h"
#include "profiles/standard_choice.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"

namespace {

// As the library does: without a directory no profile is read.
egl::DeviceProfile readChosenProfile() {
    ToolPreferences preferences;
    const std::string name = preferences.currentProfile(), directory = preferences.profilesDirectory();
    if (name.empty() || directory.empty()) return egl::defaultProfile;
    egl::DeviceProfile profile;
    if (!loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(name.c_str())))
        failCommand("the profile \"" + name + "\" cannot be read");
    return profile;
}

bool isTaken(const int32_t *list, egl::ConfigKind rules) {
    return rules == egl::ConfigKind::ofDesktop ? egl::isValidByStandard(list) : egl::validateAttributeList(list);
}

void checkPairs(const std::vector<int32_t> &criteria, egl::ConfigKind rules) {
    for (const auto &[name, value] : AttributeList(criteria.data())) {
        const int32_t single[] = {name, value, EGL_NONE};
        if (isTaken(single, rules)) continue;
        failCommand("eglChooseConfig rejects the list with EGL_BAD_ATTRIBUTE: " + egl::valueText(name, value) +
                    " is not a valid value for " + egl::attributeName(name));
    }
}

} // namespace

Explanation explain(const std::vector<int32_t> &criteria, egl::ConfigKind rules) {
    checkPairs(criteria, rules);
    const egl::DeviceProfile profile = readChosenProfile();
    constexpr uint64_t defaultDisplay = 0;
    const egl::ConfigList configs(profile, defaultDisplay, rules);
    Explanation explanation{profile.name, rules, criteria, {}, {}};
    std::vector<void *> handles(configs.configCount());
    configs.listConfigs(handles.data(), static_cast<int32_t>(handles.size()));
    for (void *handle : handles)
        explanation.ids.push_back(static_cast<int32_t>(reinterpret_cast<intptr_t>(handle)));
    configs.chooseConfigs(criteria.data(), nullptr, 0, &explanation.account);
    return explanation;
}
