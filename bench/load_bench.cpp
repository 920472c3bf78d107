// The cost of the system report in a process's first EGL call. A process has one first call, so each figure needs
// processes of its own: this program runs itself, and prints medians in milliseconds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "capability/collect_system_report.h"
#include "capability/host_probe.h"
#include "egl/egl_api.h"
#include "host/opengl_library.h"

namespace {

constexpr int runs = 15;

// Both measure the load, without and with the collection; the probing context shows the host's own share.
void probe() {
    const auto library = host::openHostOpenGLLibrary();
    const capability::HostProbe probe(std::make_shared<glove::WSAPI>());
}

void collect() {
    const auto library = host::openHostOpenGLLibrary();
    capability::SystemReport report;
    capability::SystemReportFiller filler(report);
    capability::collectSystemReport(library, std::make_shared<glove::WSAPI>(), filler);
}

void firstCall() {
    eglGetDisplay(EGL_DEFAULT_DISPLAY);
}

const struct {
    const char *name;
    void (*work)();
} modes[] = {
    {"probing context", probe},
    {"probing context and collection", collect},
    {"first eglGetDisplay", firstCall},
};

double timeOf(void (*work)()) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// Negative if the process fails.
double timeInProcess(const char *program, size_t mode) {
    const std::string command = std::string("'") + program + "' " + std::to_string(mode);
    FILE *child = popen(command.c_str(), "r");
    double milliseconds = -1;
    if (!child || fscanf(child, "%lf", &milliseconds) != 1) milliseconds = -1;
    if (child) pclose(child);
    return milliseconds;
}

} // namespace

int main(int argc, char **argv) {
    if (argc > 1) {
        printf("%.3f\n", timeOf(modes[static_cast<size_t>(argv[1][0] - '0') % std::size(modes)].work));
        return 0;
    }
    // The modes take turns, so that a slowdown of the machine affects all of them.
    std::vector<double> times[std::size(modes)];
    for (int run = 0; run < runs; ++run) {
        for (size_t mode = 0; mode < std::size(modes); ++mode)
            times[mode].push_back(timeInProcess(argv[0], mode));
    }
    for (size_t mode = 0; mode < std::size(modes); ++mode) {
        std::ranges::nth_element(times[mode], times[mode].begin() + runs / 2);
        printf("%-32s %8.2f ms\n", modes[mode].name, times[mode][runs / 2]);
    }
    return 0;
}
