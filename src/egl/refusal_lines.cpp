#include "egl/refusal_lines.h"

#include <fcntl.h>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <unistd.h>

#include "egl/desktop_clients.h"
#include "foundation/environment.h"

namespace egl::refusals {

namespace {

struct Lines {
    std::mutex mutex; // guards all below
    std::set<std::string> told;
    std::map<std::string, std::set<std::string>> held; // by call
};

// Never destroyed: threads are inside entries while the process ends.
Lines &lines() {
    static Lines &instance = *new Lines;
    return instance;
}

void writeLine(int file, const std::string &line) {
    // A failed write cannot be reported.
    if (::write(file, line.data(), line.size()) < 0) return;
}

// The command's list has lines "PID CALL TEXT", without a text for a call that succeeded.
void addToList(const char *call, const std::string &text) {
    static const int file = [] {
        const char *path = findVariable("ZELVANE_REFUSALS");
        return path ? open(path, O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK) : -1;
    }();
    if (file >= 0) writeLine(file, std::to_string(getpid()) + ' ' + call + ' ' + text + '\n');
}

} // namespace

bool hasReaders() {
    return desktop_clients::isOn();
}

void tell(const std::string &line) {
    const std::lock_guard lock(lines().mutex);
    if (lines().told.insert(line).second) writeLine(STDERR_FILENO, "zelvane: " + line + '\n');
}

void hold(const char *call, const std::string &line) {
    const std::lock_guard lock(lines().mutex);
    if (lines().held[call].insert(line).second) addToList(call, line);
}

void settle(const char *call) {
    const std::lock_guard lock(lines().mutex);
    if (lines().held.erase(call) > 0) addToList(call, "");
}

} // namespace egl::refusals
