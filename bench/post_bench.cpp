// The cost of a record for the application's thread that posts it, without a GUI and with one that reads continuously.
// Must not run while a GUI listens. The queue is emptied between the runs, so that its memory is not measured.
#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>
#include <unistd.h>

#include "foundation/product.h"
#include "ui/link.h"

using namespace ui::messages;

namespace {

void ignoreRenderMode(uint8_t) {}

// Reads and discards records until the process ends.
class ReadingGui {
public:
    ReadingGui() : m_server(productName, 1) {}
    ~ReadingGui() { unlink(m_server.path().c_str()); }
    void start() {
        std::thread([application = KZRIPC::Client(m_server)]() mutable {
            Message message;
            while (application.receive(&message, sizeof message) > 0) {
            }
        }).detach();
    }

private:
    KZRIPC::ServerSocket m_server;
};

void postMany(benchmark::State &state, const UiLink &link) {
    for (auto _ : state)
        link.post(logError("a line of the usual length, about a call that failed"));
    state.SetBytesProcessed(state.iterations() * sizeof(Message));
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
}

void buildRecord(benchmark::State &state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(logError("a line of the usual length, about a call that failed"));
}

void postWithoutGui(benchmark::State &state) {
    static const UiLink link(ignoreRenderMode);
    postMany(state, link);
}

void postWithGui(benchmark::State &state) {
    static ReadingGui gui;
    static const UiLink link(ignoreRenderMode);
    static const bool isStarted = (gui.start(), true);
    benchmark::DoNotOptimize(isStarted);
    postMany(state, link);
}

} // namespace

BENCHMARK(buildRecord);
// A fixed count, since unsent records stay in memory.
BENCHMARK(postWithoutGui)->Iterations(20000);
BENCHMARK(postWithGui)->Iterations(20000);
