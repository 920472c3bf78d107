#include "tools/lab/device_run.h"

#include <cctype>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sys/wait.h>
#include <thread>
#include <utility>

#include "tools/lab/child_process.h"
#include "tools/lab/journal_facts.h"
#include "tools/lab/virtual_server.h"
#include "tools/run/program.h"

namespace {

using Clock = std::chrono::steady_clock;

// The time limits for a program's first frame, and for its last one if frames are counted.
constexpr double startSeconds = 10;
constexpr double framesSeconds = 60;
// After this time without a frame a program is assumed to wait for input.
constexpr double idleSeconds = 5;

double secondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

// Reads the journal while it grows.
class JournalWatch {
public:
    explicit JournalWatch(const std::string &journal) : m_journal(journal) {}

    void look() {
        std::ifstream file(m_journal);
        file.seekg(m_seen);
        for (std::string line; std::getline(file, line) && !file.eof();) {
            m_seen += static_cast<std::streamoff>(line.size() + 1);
            if (line.starts_with(R"({"event":"frame")")) noteFrame();
            const bool isPicture = line.starts_with(R"({"event":"picture")");
            m_hasLastPicture = m_hasLastPicture || (isPicture && line.find(R"("isLast":true)") != std::string::npos);
        }
    }

    [[nodiscard]] bool hasLastPicture() const { return m_hasLastPicture; }
    [[nodiscard]] bool hasFrame() const { return m_firstFrame.has_value(); }
    // 0 without a frame.
    [[nodiscard]] double sinceFirstFrame() const { return hasFrame() ? secondsSince(*m_firstFrame) : 0; }
    [[nodiscard]] double sinceNewestFrame() const { return hasFrame() ? secondsSince(m_newestFrame) : 0; }

private:
    void noteFrame() {
        m_newestFrame = Clock::now();
        if (!m_firstFrame) m_firstFrame = m_newestFrame;
    }

    std::string m_journal;
    std::streamoff m_seen = 0;
    bool m_hasLastPicture = false;
    std::optional<Clock::time_point> m_firstFrame;
    Clock::time_point m_newestFrame;
};

std::vector<std::string> commandWords(const LabOptions &options, const std::string &device,
                                      const std::string &journal) {
    std::vector<std::string> words = {"/proc/self/exe", "run", "--profile", device, "--journal", journal, "--"};
    words.insert(words.end(), options.program.begin(), options.program.end());
    return words;
}

std::vector<std::string> environment(const LabOptions &options, const std::string &directory,
                                     const std::string &display) {
    std::vector<std::string> variables = {"ZELVANE_PICTURE=" + directory + "/frame"};
    variables.push_back(options.frames ? "ZELVANE_PICTURE_FRAMES=" + std::to_string(options.frames)
                                       : "ZELVANE_PICTURE_SECONDS=" + std::to_string(options.seconds));
    if (!display.empty()) variables.push_back("DISPLAY=" + display);
    return variables;
}

void tellExit(int status, DeviceResult &result) {
    // "zelvane run" returns the program's exit status, or 128 and the number of a signal.
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.endedWell = code == 0;
    result.end = code == runFailure ? "not started"
                 : code > 128       ? std::string("died: ") + strsignal(code - 128)
                                    : "exit status " + std::to_string(code);
}

// Why the lab ends a running program, and whether that is a success; nothing while it may continue.
std::optional<std::pair<const char *, bool>> reasonToEnd(const LabOptions &options, const JournalWatch &watch,
                                                         double seconds) {
    constexpr double grace = 1; // for the frame of the picture
    if (watch.hasLastPicture()) return std::pair("ended by the lab after the last frame", true);
    const bool isIdle =
        options.frames ? watch.sinceNewestFrame() > idleSeconds : watch.sinceFirstFrame() > options.seconds + grace;
    if (isIdle) return std::pair("ended by the lab; it showed no more frames", true);
    if (!watch.hasFrame() && seconds > startSeconds) return std::pair("ended by the lab; it showed no frame", false);
    if (options.frames && seconds > framesSeconds)
        return std::pair("ended by the lab; it did not reach its last frame", false);
    return std::nullopt;
}

void waitForEnd(const LabOptions &options, ChildProcess &program, const std::string &journal,
                const std::atomic<bool> &isStopped, DeviceResult &result) {
    using namespace std::chrono_literals;
    JournalWatch watch(journal);
    for (const auto begin = Clock::now();; std::this_thread::sleep_for(20ms)) {
        result.seconds = secondsSince(begin);
        if (const auto status = program.poll()) return tellExit(*status, result);
        watch.look();
        const auto reason =
            isStopped ? std::pair("the lab was stopped", false) : reasonToEnd(options, watch, result.seconds);
        if (!reason) continue;
        result.end = reason->first;
        result.endedWell = reason->second;
        return program.end();
    }
}

std::string tailOf(const std::string &path) {
    constexpr size_t mostLines = 20, mostLetters = 400;
    std::deque<std::string> lines;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line.substr(0, mostLetters));
        if (lines.size() > mostLines) lines.pop_front();
    }
    std::string text;
    for (const std::string &line : lines)
        text += line + '\n';
    return text;
}

} // namespace

std::string fileNameOf(const std::string &device) {
    std::string name;
    for (const char letter : device)
        name += isalnum(static_cast<unsigned char>(letter)) || letter == '.' ? letter : '-';
    return name;
}

DeviceResult runOnDevice(const LabOptions &options, const std::string &device, const std::string &directory,
                         const std::atomic<bool> &isStopped) {
    DeviceResult result;
    result.device = device;
    std::optional<VirtualServer> server;
    if (!options.isHere) {
        server.emplace();
        if (server->display().empty()) {
            result.end = "Xvfb does not start";
            return result;
        }
    }
    const std::string journal = directory + "/journal", log = directory + "/log";
    std::error_code error;
    std::filesystem::remove(journal, error);
    ChildProcess program(commandWords(options, device, journal),
                         environment(options, directory, server ? server->display() : ""), log);
    if (program.isStarted()) {
        waitForEnd(options, program, journal, isStopped, result);
    } else {
        result.end = "not started";
    }
    const std::string picture = readJournal(journal, result);
    if (!picture.empty()) result.picture = readPicture(picture);
    for (const auto &entry : std::filesystem::directory_iterator(directory, error))
        if (entry.path().extension() == ".ppm") std::filesystem::remove(entry.path(), error);
    result.logTail = tailOf(log);
    return result;
}
