#include "tools/command/child_answer.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tools/command/failure.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr char failureKey[] = "failure of the query";

void write(int end, const std::string &text) {
    for (size_t done = 0; done < text.size();) {
        const ssize_t count = ::write(end, text.data() + done, text.size() - done);
        if (count <= 0) return;
        done += static_cast<size_t>(count);
    }
}

// Ends with _exit, since the exit handlers and buffers are those of the parent.
[[noreturn]] void answer(const std::function<Json()> &question, int end) {
    Json json;
    try {
        json = question();
    } catch (const Failure &failure) {
        std::cerr.flush();
        _exit(failure.status);
    } catch (const std::exception &error) {
        json = {{failureKey, error.what()}};
    }
    write(end, jsonLine(json));
    _exit(EXIT_SUCCESS);
}

// Reads to the end of the text. False if the limit is reached first.
bool readAll(int end, std::string &text, Clock::time_point limit) {
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(limit - Clock::now()).count();
        pollfd waiting{end, POLLIN, 0};
        if (left <= 0 || poll(&waiting, 1, static_cast<int>(left)) == 0) return false;
        char bytes[4096];
        const ssize_t count = read(end, bytes, sizeof bytes);
        if (count == 0) return true;
        if (count > 0) text.append(bytes, static_cast<size_t>(count));
    }
}

std::string endText(int status) {
    if (WIFSIGNALED(status)) return std::string("ends by the signal \"") + strsignal(WTERMSIG(status)) + '"';
    return "ends without a result";
}

} // namespace

ChildAnswer askInChild(const std::function<Json()> &question, std::chrono::seconds limit) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) failCommand("no pipe can be created");
    std::cout.flush();
    fflush(stdout);
    const pid_t child = fork();
    if (child < 0) failCommand(std::string("no process can be created: ") + strerror(errno));
    if (child == 0) {
        close(ends[0]);
        answer(question, ends[1]);
    }
    close(ends[1]);
    std::string text;
    const bool isInTime = readAll(ends[0], text, Clock::now() + limit);
    close(ends[0]);
    if (!isInTime) kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    if (!isInTime) return {{}, "does not answer within " + std::to_string(limit.count()) + " seconds"};
    if (text.empty() && WIFEXITED(status) && WEXITSTATUS(status) != 0) throw Failure{WEXITSTATUS(status)};
    Json json = Json::parse(text, nullptr, false);
    if (json.is_discarded()) return {{}, endText(status)};
    if (json.is_object() && json.contains(failureKey)) return {{}, json[failureKey].get<std::string>()};
    return {std::move(json), {}};
}
