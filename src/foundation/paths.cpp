#include "foundation/paths.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

const std::string &getOwnDirectory() {
    static const std::string directory = [] {
        Dl_info image{};
        if (dladdr(reinterpret_cast<const void *>(&getOwnDirectory), &image) == 0 || !image.dli_fname) {
            return std::string();
        }
        std::string path = image.dli_fname;
        const auto slash = path.rfind('/');
        if (slash == std::string::npos) return path;
        path.resize(slash);
        // The loader found it by a relative search path; the links by which libraries are opened lie elsewhere.
        if (path.empty() || path.front() == '/') return path;
        std::error_code failed;
        const std::filesystem::path absolute = std::filesystem::absolute(path, failed);
        return failed ? path : absolute.string();
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
