#include "measure.h"

#include <chrono>
#include <linux/perf_event.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds runTime{2};
constexpr int runs = 9;
constexpr long mostPasses = 1l << 24;

// Counts user instructions of the calling thread.
class Counter {
public:
    Counter() {
        perf_event_attr attributes = {};
        attributes.type = PERF_TYPE_HARDWARE;
        attributes.size = sizeof attributes;
        attributes.config = PERF_COUNT_HW_INSTRUCTIONS;
        attributes.exclude_kernel = 1;
        attributes.exclude_hv = 1;
        m_descriptor = static_cast<int>(syscall(SYS_perf_event_open, &attributes, 0, -1, -1, 0));
    }
    ~Counter() {
        if (m_descriptor >= 0) close(m_descriptor);
    }
    Counter(const Counter &) = delete;
    Counter &operator=(const Counter &) = delete;

    // 0 if the machine has no such counter.
    [[nodiscard]] double read() const {
        long long count = 0;
        return ::read(m_descriptor, &count, sizeof count) == sizeof count ? static_cast<double>(count) : 0;
    }

private:
    int m_descriptor;
};

long passesOfARun(void (*body)(long), void (*settle)()) {
    for (long passes = 1; passes < mostPasses; passes *= 2) {
        const auto start = Clock::now();
        body(passes);
        const auto time = Clock::now() - start;
        settle();
        if (time > runTime) return passes;
    }
    return mostPasses;
}

} // namespace

Cost measure(void (*body)(long passes), void (*settle)()) {
    static const Counter counter;
    body(1);
    const long passes = passesOfARun(body, settle);
    Cost best = {};
    for (int run = 0; run < runs; ++run) {
        const double counted = counter.read();
        const auto start = Clock::now();
        body(passes);
        const std::chrono::duration<double, std::nano> time = Clock::now() - start;
        const double instructions = counter.read() - counted;
        settle();
        if (run > 0 && time.count() >= best.nanoseconds) continue;
        best = {time.count(), instructions};
    }
    const auto each = static_cast<double>(passes);
    return {best.nanoseconds / each, best.instructions / each};
}
