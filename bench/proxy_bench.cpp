// What a proxy adds to a call of the back end's function: compare each Proxy row with its Direct row. The argument is
// the number of contexts that have called the name; where it says Switching, another of them is current at every call.
#include <benchmark/benchmark.h>

#include "gl/entry_proxy.h"
#include "proxy_bench_back_end.h"

namespace {

using DrawRangeElements = void(GLenum, GLuint, GLuint, GLsizei, GLenum, const void *);

constinit gl::GLEntryProxy flushRecord{"glFlush"};
constinit gl::GLEntryProxy drawRecord{"glDrawRangeElements"};

// As far apart as real ones are in a heap. Nothing but the address of a context is looked at.
constexpr size_t contextSize = 320;
alignas(16) std::byte contextStorage[8][contextSize];

egl::Context *context(size_t index) {
    return reinterpret_cast<egl::Context *>(contextStorage[index]);
}

// Contexts of earlier runs stay in the map, as they do in the library: run the rows in their order.
template <typename Signature>
void bringUpContexts(gl::GLEntryProxy &record, Signature *function, size_t count) {
    for (size_t index = 0; index < count; ++index)
        record.resolved.store(context(index), reinterpret_cast<gl::Function>(function));
    egl::threadRecord.current = context(count - 1);
}

void noArgumentsDirect(benchmark::State &state) {
    auto *function = backEndFlush;
    benchmark::DoNotOptimize(function);
    for (auto _ : state)
        function();
}

void noArgumentsProxy(benchmark::State &state) {
    bringUpContexts(flushRecord, backEndFlush, state.range(0));
    auto *function = gl::Entry<flushRecord, void()>::call;
    benchmark::DoNotOptimize(function);
    for (auto _ : state)
        function();
}

void sixArgumentsDirect(benchmark::State &state) {
    auto *function = backEndDrawRangeElements;
    benchmark::DoNotOptimize(function);
    for (auto _ : state)
        function(GL_TRIANGLES, 0, 99, 300, GL_UNSIGNED_SHORT, nullptr);
}

void sixArgumentsProxy(benchmark::State &state) {
    bringUpContexts(drawRecord, backEndDrawRangeElements, state.range(0));
    auto *function = gl::Entry<drawRecord, DrawRangeElements>::call;
    benchmark::DoNotOptimize(function);
    for (auto _ : state)
        function(GL_TRIANGLES, 0, 99, 300, GL_UNSIGNED_SHORT, nullptr);
}

void sixArgumentsProxySwitching(benchmark::State &state) {
    const size_t count = state.range(0);
    bringUpContexts(drawRecord, backEndDrawRangeElements, count);
    auto *function = gl::Entry<drawRecord, DrawRangeElements>::call;
    benchmark::DoNotOptimize(function);
    size_t calls = 0;
    for (auto _ : state) {
        egl::threadRecord.current = context(calls++ & (count - 1));
        function(GL_TRIANGLES, 0, 99, 300, GL_UNSIGNED_SHORT, nullptr);
    }
}

} // namespace

BENCHMARK(noArgumentsDirect);
BENCHMARK(noArgumentsProxy)->RangeMultiplier(2)->Range(1, 8);
BENCHMARK(sixArgumentsDirect);
BENCHMARK(sixArgumentsProxy)->RangeMultiplier(2)->Range(1, 8);
BENCHMARK(sixArgumentsProxySwitching)->Arg(8);
