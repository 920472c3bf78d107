// The process that listens at the socket for GUIs. Queried from the kernel, since a connection would appear there as an
// application.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/product.h"
#include "tools/doctor/diagnosis.h"
#include "ui/socket.h"

namespace fs = std::filesystem;

namespace {

// The inode of the socket that listens at the path; empty for none.
std::string listeningInode(const std::string &path) {
    constexpr char listening[] = "00010000";
    std::ifstream table("/proc/net/unix");
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::string number, references, protocol, flags, type, state, inode, name;
        words >> number >> references >> protocol >> flags >> type >> state >> inode >> name;
        if (name == path && flags == listening) return inode;
    }
    return {};
}

bool hasDescriptor(const fs::path &process, const std::string &target) {
    std::error_code error;
    for (const auto &entry : fs::directory_iterator(process / "fd", error))
        if (fs::read_symlink(entry.path(), error) == target) return true;
    return false;
}

// "process 12 (zelvane)"; the processes of other users cannot be examined.
std::string listenerText(const std::string &inode) {
    std::error_code error;
    for (const auto &entry : fs::directory_iterator("/proc", error)) {
        const std::string number = entry.path().filename();
        if (!isdigit(static_cast<unsigned char>(number[0]))) continue;
        if (!hasDescriptor(entry.path(), "socket:[" + inode + ']')) continue;
        std::string name;
        std::getline(std::ifstream(entry.path() / "comm"), name);
        return "process " + number + " (" + name + ')';
    }
    return "a process of another user";
}

} // namespace

void examineSocket(Diagnosis &diagnosis) {
    const std::string path = KZRIPC::socketPath(productName);
    Json &facts = diagnosis.facts["guiSocket"] = {{"path", path}, {"listener", nullptr}};
    struct stat file {};
    if (lstat(path.c_str(), &file) != 0) return;
    if (!S_ISSOCK(file.st_mode))
        return diagnosis.add('"' + path + "\" blocks the monitor's socket", "rm -r \"" + path + '"');
    const std::string inode = listeningInode(path);
    if (inode.empty()) return;
    facts["listener"] = listenerText(inode);
    if (file.st_uid != 0 && file.st_uid != geteuid()) {
        diagnosis.add("user " + std::to_string(file.st_uid) + " listens at \"" + path +
                          "\"; applications send their log to listeners of their own user and of root only",
                      "end that listener, then start \"zelvane monitor\"");
    }
}
