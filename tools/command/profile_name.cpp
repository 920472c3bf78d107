#include "tools/command/profile_name.h"

#include "profiles/profile_reader.h"
#include "tools/command/failure.h"

void checkProfileName(const std::string &name, const std::string &directory) {
    egl::DeviceProfile profile;
    const CKZRTString profileName(name.c_str());
    const auto text = egl::findProfileText(CKZRTString(directory.c_str()), profileName);
    if (!text) {
        failCommand("\"" + name + "\" is none of the built-in profiles, and " +
                    (directory.empty() ? "no profiles directory is set" : "\"" + directory + "\" has no such file") +
                    "; \"zelvane profiles\" lists what there is");
    }
    if (!readDeviceProfile(profile, *text, profileName)) {
        failCommand("\"" + name + "\" is no profile; \"zelvane profiles check\" tells what is wrong with a file");
    }
}
