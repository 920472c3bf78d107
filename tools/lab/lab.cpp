#include "tools/lab/lab.h"

#include <atomic>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <sstream>
#include <thread>

#include "tools/command/failure.h"
#include "tools/lab/device_run.h"
#include "tools/lab/page.h"
#include "tools/lab/results_json.h"
#include "tools/lab/verdict.h"

namespace fs = std::filesystem;

namespace {

std::string directoryOf(const LabOptions &options, const std::string &device) {
    return (fs::path(options.out) / fileNameOf(device)).string();
}

void makeDirectory(const std::string &path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) failCommand("\"" + path + "\" cannot be made: " + error.message());
}

void writeFile(const fs::path &path, const std::string &text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    if (!file.flush()) failCommand("\"" + path.string() + "\" cannot be written");
}

std::string progressLine(const DeviceResult &result) {
    std::ostringstream text;
    text << result.device << ": " << (result.hasContext ? result.esVersion : "no context") << ", " << result.frames
         << " frames";
    if (result.framesPerSecond > 0) text << ", " << static_cast<int>(result.framesPerSecond + 0.5) << " a second";
    text << ", " << result.refusals.size() << " refusals, " << result.lacking.size() << " lacking, "
         << result.glErrors.size() << " GL errors; " << result.end << '\n';
    return text.str();
}

// Each worker takes the next device until none is left. Only the waiting thread handles signals.
class Workers {
public:
    Workers(const LabOptions &options, std::vector<DeviceResult> &results) : m_options(options), m_results(results) {
        sigemptyset(&m_signals);
        for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGUSR1})
            sigaddset(&m_signals, number);
        pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
    }
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;
    ~Workers() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

    // Returns the number of the signal that ended it early, or 0.
    [[nodiscard]] int run() {
        std::vector<std::thread> threads;
        for (unsigned job = 0; job < m_options.jobs; ++job)
            threads.emplace_back([this] { work(); });
        int number = 0;
        while (m_working > 0 && number == 0) {
            constexpr timespec pause{0, 50'000'000};
            const int taken = sigtimedwait(&m_signals, nullptr, &pause);
            if (taken > 0) number = taken;
        }
        m_isStopped = number != 0;
        for (std::thread &thread : threads)
            thread.join();
        return number;
    }

private:
    void work() {
        for (size_t next = m_next++; next < m_options.devices.size() && !m_isStopped; next = m_next++) {
            const std::string &device = m_options.devices[next];
            m_results[next] = runOnDevice(m_options, device, directoryOf(m_options, device), m_isStopped);
            const std::lock_guard lock(m_output);
            std::cerr << progressLine(m_results[next]);
        }
        --m_working;
    }

    const LabOptions &m_options;
    std::vector<DeviceResult> &m_results; // each is written by one worker
    std::atomic<size_t> m_next = 0;
    std::atomic<unsigned> m_working = m_options.jobs;
    std::atomic<bool> m_isStopped = false;
    std::mutex m_output;
    sigset_t m_signals, m_before;
};

void writePictures(const LabOptions &options, const DeviceResult &result) {
    const fs::path directory = directoryOf(options, result.device);
    if (result.picture) writeFile(directory / "picture.png", pngOf(*result.picture));
    if (result.difference) writeFile(directory / "difference.png", pngOf(result.difference->picture));
}

} // namespace

int runLab(const LabOptions &options, std::vector<DeviceResult> &results) {
    results.resize(options.devices.size());
    for (size_t i = 0; i < results.size(); ++i) {
        results[i].device = options.devices[i];
        results[i].end = "not run";
        makeDirectory(directoryOf(options, options.devices[i]));
    }
    const int stoppedBy = Workers(options, results).run();
    judge(results, options.reference, options.failOn);
    for (const DeviceResult &result : results)
        writePictures(options, result);
    const fs::path out = options.out;
    writeFile(out / "lab.json",
              resultsAsJson(options, results).dump(2, ' ', false, Json::error_handler_t::replace) + '\n');
    writeFile(out / "junit.xml", resultsAsJunit(options, results));
    writeFile(out / "index.html", resultsAsPage(options, results));
    return stoppedBy;
}
