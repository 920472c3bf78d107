#include "tools/lab/virtual_server.h"

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sstream>
#include <unistd.h>

bool VirtualServer::isThere() {
    const char *path = getenv("PATH");
    std::istringstream directories(path ? path : "/bin:/usr/bin");
    for (std::string directory; std::getline(directories, directory, ':');)
        if (access((directory + "/Xvfb").c_str(), X_OK) == 0) return true;
    return false;
}

// The server chooses a free display number and writes it to the pipe once it is ready.
VirtualServer::VirtualServer() {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) return;
    m_process = std::make_unique<ChildProcess>(std::vector<std::string>{"Xvfb", "-displayfd", std::to_string(ends[1]),
                                                                        "-noreset", "-nolisten", "tcp", "-screen", "0",
                                                                        "1280x1024x24"},
                                               std::vector<std::string>{}, "", ends[1]);
    close(ends[1]);
    std::string number;
    constexpr int longestWaitMs = 10000;
    for (char digit = 0; number.size() < 16;) {
        pollfd waiting{ends[0], POLLIN, 0};
        if (poll(&waiting, 1, longestWaitMs) <= 0 || ::read(ends[0], &digit, 1) != 1 || digit == '\n') break;
        number += digit;
    }
    close(ends[0]);
    if (!number.empty()) m_display = ':' + number;
}
