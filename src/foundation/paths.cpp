#include "foundation/paths.h"

#include <cstdlib>
#include <dlfcn.h>
#include <pwd.h>
#include <unistd.h>

const std::string &getOwnDirectory() {
    static const std::string directory = [] {
        Dl_info image{};
        if (dladdr(reinterpret_cast<const void *>(&getOwnDirectory), &image) == 0 || !image.dli_fname) {
            return std::string();
        }
        std::string path = image.dli_fname;
        if (const auto slash = path.rfind('/'); slash != std::string::npos) path.resize(slash);
        return path;
    }();
    return directory;
}

bool getHomeDirectory(std::string &path) {
    if (const char *home = getenv("HOME")) {
        path = home;
    } else if (const passwd *user = getpwuid(getuid()); user && user->pw_dir) {
        path = user->pw_dir;
    } else {
        path.clear();
    }
    return !path.empty();
}

bool getConfigDirectory(std::string &path) {
    if (!getHomeDirectory(path)) return false;
    path += "/.kzrconfig/Tarnwell Graphics";
    return true;
}

bool getProfilePathFromEnvironment(std::string &path) {
    const char *value = getenv("ZELVANE_PROFILE_PATH");
    if (!value) return false;
    path = value;
    return true;
}

FILE *openForReading(const std::string &path) {
    return fopen(path.c_str(), "r");
}
