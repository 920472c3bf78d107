#include "foundation/paths.h"

#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/environment.h"

namespace {

// Never destroyed: threads and exit handlers use it while the process ends.
const std::string &keep(std::string path) {
    return *new std::string(std::move(path));
}

// Determined when the library is loaded, since the path that the loader reports may be relative.
[[maybe_unused]] const std::string &settledWhenLoaded = getOwnDirectory();

} // namespace

const std::string &getOwnDirectory() {
    static const std::string &directory = keep([] {
        Dl_info image{};
        if (dladdr(reinterpret_cast<const void *>(&getOwnDirectory), &image) == 0 || !image.dli_fname) {
            return std::string();
        }
        std::string path = image.dli_fname;
        const auto slash = path.rfind('/');
        if (slash == std::string::npos) return path;
        path.resize(slash);
        // The loader reports a relative path for a relative search path; it is resolved against the current working
        // directory.
        if (path.empty() || path.front() == '/') return path;
        std::error_code failed;
        const std::filesystem::path absolute = std::filesystem::absolute(path, failed);
        return failed ? path : absolute.string();
    }());
    return directory;
}

const std::string &getFirstWorkingDirectory() {
    static const std::string &directory = keep([] {
        std::error_code failed;
        return std::filesystem::current_path(failed).string();
    }());
    return directory;
}

bool getHomeDirectory(std::string &path) {
    if (const char *home = findVariable("HOME")) {
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
    const char *value = findVariable("ZELVANE_PROFILE_PATH");
    if (!value) return false;
    path = value;
    return true;
}

FILE *openForReading(const std::string &path) {
    // O_NONBLOCK returns from a pipe at once, and changes nothing for regular files.
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return nullptr;
    struct stat found {};
    const bool isKnown = fstat(descriptor, &found) == 0;
    // A parser's messages quote the file. They must not reveal a file that only the process may read, and not its user.
    const bool isForeign = hasForeignRights() && found.st_uid != getuid();
    FILE *stream = isKnown && !isForeign && S_ISREG(found.st_mode) ? fdopen(descriptor, "r") : nullptr;
    if (stream) return stream;
    const int reason = isForeign ? EACCES : isKnown && S_ISDIR(found.st_mode) ? EISDIR : isKnown ? ENOTSUP : errno;
    close(descriptor);
    errno = reason;
    return nullptr;
}
