// The cost that a proxy adds to a call of the back end's function. The argument is the number of contexts that have
// called the name, 0 for the function without its proxy. In the Switching cases another context is current at every
// call.
#include <benchmark/benchmark.h>

#include "gl/entry_tables.h"
#include "proxy_bench_back_end.h"

namespace {

using Flush = void();
using DrawRangeElements = void(GLenum, GLuint, GLuint, GLsizei, GLenum, const void *);

std::byte contexts[64];

gl::Function ask(void *, const char *name) {
    return std::string_view(name) == "glFlush" ? reinterpret_cast<gl::Function>(backEndFlush)
                                               : reinterpret_cast<gl::Function>(backEndDrawRangeElements);
}

void makeCurrent(size_t context) {
    gl::currentFunctions = &gl::functionTableAt(&contexts[context], ask);
}

// The entry of that name, after every context has called it, with the last one current.
template <typename Signature>
Signature *bringUpContexts(const char *name, Signature *direct, size_t count) {
    auto *entry = reinterpret_cast<Signature *>(gl::findEntry(name));
    for (size_t context = 0; context < count; ++context) {
        makeCurrent(context);
        if constexpr (std::is_same_v<Signature, Flush>)
            entry();
        else
            entry(GL_TRIANGLES, 0, 99, 300, GL_UNSIGNED_SHORT, nullptr);
    }
    auto *function = count ? entry : direct;
    benchmark::DoNotOptimize(function);
    return function;
}

// Argument 0 is the function itself.
void noArguments(benchmark::State &state) {
    auto *function = bringUpContexts("glFlush", backEndFlush, state.range(0));
    for (auto _ : state)
        function();
}

void sixArguments(benchmark::State &state) {
    auto *function = bringUpContexts("glDrawRangeElements", backEndDrawRangeElements, state.range(0));
    for (auto _ : state)
        function(GL_TRIANGLES, 0, 99, 300, GL_UNSIGNED_SHORT, nullptr);
}

void sixArgumentsSwitching(benchmark::State &state) {
    const size_t count = state.range(0);
    auto *function = bringUpContexts("glDrawRangeElements", backEndDrawRangeElements, count);
    gl::FunctionTable *tables[64];
    for (size_t context = 0; context < count; ++context)
        tables[context] = &gl::functionTableAt(&contexts[context], ask);
    size_t calls = 0;
    for (auto _ : state) {
        gl::currentFunctions = tables[calls++ & (count - 1)];
        function(GL_TRIANGLES, 0, 99, 300, GL_UNSIGNED_SHORT, nullptr);
    }
}

} // namespace

BENCHMARK(noArguments)->Arg(0)->Arg(1)->Arg(8)->Arg(64);
BENCHMARK(sixArguments)->Arg(0)->Arg(1)->Arg(8)->Arg(64);
BENCHMARK(sixArgumentsSwitching)->Arg(64);
