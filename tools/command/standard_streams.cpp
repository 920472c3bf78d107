#include "tools/command/standard_streams.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <string>
#include <unistd.h>

void occupyStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // open() returns the lowest free number, which is that of the closed stream.
        if (fcntl(stream, F_GETFD) < 0) (void)open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

namespace {

bool hasReader(int stream) {
    pollfd output{stream, 0, 0};
    return poll(&output, 1, 0) == 0;
}

} // namespace

int finishOutput(int status) {
    errno = 0;
    std::cout.flush();
    if (fflush(stdout) == 0 && !ferror(stdout)) return status;
    // If an earlier write failed, its reason is lost.
    const std::string reason = errno ? std::string(": ") + strerror(errno) : "";
    if (!hasReader(STDOUT_FILENO)) return status;
    std::cerr << "zelvane: the output cannot be written" << reason << '\n';
    return status == 0 ? outputFailure : status;
}
