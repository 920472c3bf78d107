#include "journal/journal.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "foundation/environment.h"
#include "foundation/log.h"

namespace journal {

namespace {

// The process keeps the file open. It is closed at exec, and a started program opens it itself. O_NONBLOCK makes the
// open of a pipe without a reader fail instead of block.
int openFile() {
    const char *path = findVariable("ZELVANE_JOURNAL");
    if (!path || !*path) return -1;
    const int file = open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0644);
    if (file < 0) {
        const std::string text =
            std::string("There is no journal: \"") + path + "\" cannot be opened: " + strerror(errno);
        logMessage(LogError, "%s", text.c_str());
    }
    return file;
}

int file() {
    static const int opened = openFile();
    return opened;
}

// Uses one write, so that lines of several writers do not mix. On a full disk lines are lost, without an error.
void writeWhole(const std::string &text) {
    std::string_view rest = text;
    while (!rest.empty()) {
        const ssize_t written = ::write(file(), rest.data(), rest.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return;
        rest.remove_prefix(static_cast<size_t>(written));
    }
}

double secondsSinceEpoch() {
    using namespace std::chrono;
    return static_cast<double>(duration_cast<microseconds>(system_clock::now().time_since_epoch()).count()) / 1e6;
}

// In the order in which threads first write, from 1.
int threadNumber() {
    static std::atomic<int> count = 0;
    thread_local const int number = ++count;
    return number;
}

} // namespace

bool isOn() {
    return file() >= 0;
}

void write(const char *event, const Json &fields) {
    if (!isOn()) return;
    const int errorBefore = errno;
    Json line = {{"event", event}, {"time", secondsSinceEpoch()}, {"pid", getpid()}, {"thread", threadNumber()}};
    line.update(fields);
    writeWhole(line.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n');
    errno = errorBefore;
}

} // namespace journal
