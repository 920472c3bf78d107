#include "tools/monitor/listener.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

#include "foundation/product.h"
#include "tools/command/failure.h"
#include "tools/monitor/time_text.h"

namespace {

// Monitors check and replace the socket file under this lock of its directory, which creates no file. The lock is not
// waited for if it is held long.
class DirectoryLock {
public:
    explicit DirectoryLock(const std::string &path)
        : m_directory(open(path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        for (int attempt = 0; attempt < 100 && flock(m_directory, LOCK_EX | LOCK_NB) != 0; ++attempt)
            usleep(10000);
    }
    DirectoryLock(const DirectoryLock &) = delete;
    DirectoryLock &operator=(const DirectoryLock &) = delete;
    ~DirectoryLock() { close(m_directory); }

private:
    int m_directory;
};

ucred peerOf(int descriptor) {
    ucred peer{0, static_cast<uid_t>(-1), static_cast<gid_t>(-1)};
    socklen_t size = sizeof peer;
    (void)getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size);
    return peer;
}

std::string processText(pid_t number) {
    if (number <= 0) return "a process";
    std::ifstream file("/proc/" + std::to_string(number) + "/comm");
    std::string name;
    std::getline(file, name);
    return "process " + std::to_string(number) + (name.empty() ? "" : " (" + name + ")");
}

// Connects as an application would, without waiting.
void failIfSomebodyListens(const std::string &path, const struct stat &file) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int probe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool isConnected = connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    const int error = isConnected ? 0 : errno;
    const pid_t listener = isConnected ? peerOf(probe).pid : 0;
    close(probe);
    // A full queue belongs to a live listener.
    if (error == 0 || error == EAGAIN) {
        failCommand(processText(listener) + " already listens at \"" + path + "\", since " +
                    timeText(localtime_r, "%F %T", file.st_mtim.tv_sec));
    }
    if (error == EACCES)
        failCommand("\"" + path + "\" is not accessible; it belongs to user " + std::to_string(file.st_uid));
}

void failIfTaken(const std::string &path) {
    struct stat file {};
    if (lstat(path.c_str(), &file) != 0) return;
    if (!S_ISSOCK(file.st_mode)) failCommand("\"" + path + "\" exists and is not a socket");
    failIfSomebodyListens(path, file);
}

// File numbers are reused; the times tell such files apart.
bool isSameFile(const struct stat &one, const struct stat &other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_mtim.tv_sec == other.st_mtim.tv_sec &&
           one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
}

} // namespace

Listener::Listener() {
    const std::string path = KZRIPC::socketPath(productName);
    const DirectoryLock lock(path);
    failIfTaken(path);
    // Every user may connect: accept() checks the user, and a monitor of root accepts all.
    const mode_t mask = umask(0111);
    m_server.emplace(productName, 16);
    const int error = errno;
    umask(mask);
    if (m_server->failed()) failCommand("cannot listen at \"" + path + "\": " + strerror(error));
    (void)lstat(path.c_str(), &m_file);
}

Listener::~Listener() {
    const DirectoryLock lock(path());
    struct stat found {};
    if (lstat(path().c_str(), &found) == 0 && isSameFile(found, m_file)) unlink(path().c_str());
}

Listener::Arrival Listener::accept() const {
    KZRIPC::Client client(*m_server);
    if (client.failed()) {
        client.close();
        return {};
    }
    const ucred peer = peerOf(client.descriptor());
    if (geteuid() == 0 || peer.uid == geteuid()) return {client, {}};
    client.close();
    return {{}, processText(peer.pid) + " of user " + std::to_string(peer.uid)};
}
