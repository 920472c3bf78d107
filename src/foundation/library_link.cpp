#include "foundation/library_link.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#include "foundation/environment.h"
#include "foundation/log.h"
#include "foundation/paths.h"

namespace {

// The size of the buffer for the directory's name. With a longer temporary directory no library is opened.
constexpr size_t parentLimit = 1024;

void tellOnce(const std::string &parent, int reason) {
    static std::atomic<bool> isTold = false;
    if (isTold.exchange(true)) return;
    const std::string text = "Failed to make a link to a library below '" + parent + "': " + strerror(reason);
    logMessage(LogError, "%s", text.c_str());
}

} // namespace

LibraryLink::LibraryLink(const std::string &target) {
    const char *own = findVariable("XDG_RUNTIME_DIR");
    if (own && *own == '/' && makeBelow(std::string(own) + "/", target)) return;
    const std::string temporary = getTemporaryDirectory();
    if (!makeBelow(temporary, target)) tellOnce(temporary, errno);
}

LibraryLink::~LibraryLink() {
    if (!m_path.empty()) unlink(m_path.c_str());
    if (!m_directory.empty()) rmdir(m_directory.c_str());
}

// Sets errno when it fails.
bool LibraryLink::makeBelow(const std::string &parent, const std::string &target) {
    errno = ENAMETOOLONG;
    if (parent.empty() || parent.size() >= parentLimit) return false;
    std::string directory = parent + "zelvane.XXXXXX";
    if (!mkdtemp(directory.data())) return false; // with mode 0700
    const std::string path = directory + "/library";
    if (symlink(target.c_str(), path.c_str()) != 0) {
        const int reason = errno;
        rmdir(directory.c_str());
        errno = reason;
        return false;
    }
    m_directory = directory;
    m_path = path;
    return true;
}
