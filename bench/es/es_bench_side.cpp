// One side of bench/es_bench, which starts it and requests rows. Usage: es_bench_side host|back-end|application [MAJOR]
// For each line of standard input, the name of a row, prints a line with the nanoseconds and user instructions of one
// call, or "-" if the side has no such call. The line "rows" lists the names.
#include "measure.h"
#include "rows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

Side side = Side::Application;

void answer(const Scene &scene, const Row &row) {
    if (side == Side::Host && !row.isForHost) {
        std::puts("-");
        return;
    }
    scene.reset();
    row.prepare(scene);
    const Cost cost = measure(row.body, scene.gl.glFinish);
    if (scene.gl.glGetError() != GL_NO_ERROR) fail(row.name);
    std::printf("%.3f\t%.2f\n", cost.nanoseconds, cost.instructions);
}

} // namespace

[[noreturn]] void fail(const char *what) {
    std::fprintf(stderr, "es_bench_side: %s\n", what);
    std::_Exit(1);
}

void openContext(Side which, int major) {
    if (which == Side::Host) return openGlxContext();
    openEglContext(which == Side::BackEnd, major);
}

void *function(const char *name) {
    return side == Side::Host ? glxFunction(name) : eglFunction(name);
}

int main(int argc, char **argv) {
    const std::string wanted = argc > 1 ? argv[1] : "";
    if (wanted != "host" && wanted != "back-end" && wanted != "application") fail("host, back-end or application?");
    side = wanted == "host" ? Side::Host : wanted == "back-end" ? Side::BackEnd : Side::Application;
    openContext(side, argc > 2 ? std::atoi(argv[2]) : 3);
    const Scene scene(side);
    setScene(scene);
    for (std::string line; std::getline(std::cin, line); std::fflush(stdout)) {
        if (line == "rows") {
            for (const Row &row : allRows())
                std::puts(row.name);
            std::puts("");
            continue;
        }
        const auto row = std::ranges::find(allRows(), line, &Row::name);
        if (row == allRows().end()) fail(line.c_str());
        answer(scene, *row);
    }
    // Exits without the libraries' destructors, which take time.
    std::fflush(stdout);
    std::_Exit(0);
}
