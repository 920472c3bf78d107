// Random numbers that the seed of a run reproduces.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <span>
#include <string>

class Random {
public:
    explicit Random(uint64_t seed) : m_engine(seed) {}

    uint32_t below(uint32_t bound) { return static_cast<uint32_t>(m_engine() % bound); }
    bool once(uint32_t in) { return below(in) == 0; }
    template <typename Range>
    auto &of(Range &range) {
        return range[below(static_cast<uint32_t>(std::size(range)))];
    }
    int32_t number() {
        constexpr int32_t edges[] = {0, 1, -1, 2, 3, 16, 0x3038, INT32_MAX, INT32_MIN, 65536};
        return once(3) ? static_cast<int32_t>(m_engine()) : of(edges);
    }
    // A mutated text: bytes changed, parts duplicated, cut or moved.
    std::string mutated(std::string text) {
        for (uint32_t change = below(8); change > 0 && !text.empty(); --change) {
            const uint32_t from = below(text.size()), length = below(40), to = below(text.size());
            const std::string part = text.substr(from, length);
            switch (below(4)) {
            case 0:
                text[from] = static_cast<char>(m_engine());
                break;
            case 1:
                text.insert(to, part);
                break;
            case 2:
                text.erase(from, length);
                break;
            default:
                text.replace(to, length, part);
            }
        }
        return text;
    }

private:
    std::mt19937_64 m_engine;
};

// The arguments of both fuzzers: seconds, and the seed of an earlier run.
struct Run {
    Run(int argc, char **argv)
        : end(std::chrono::steady_clock::now() + std::chrono::seconds(argc > 1 ? atoi(argv[1]) : 60)),
          seed(argc > 2 ? strtoull(argv[2], nullptr, 0) : std::random_device()()) {
        std::printf("%s: seed %llu\n", argv[0], static_cast<unsigned long long>(seed));
        std::fflush(stdout);
    }
    [[nodiscard]] bool isOver() const { return std::chrono::steady_clock::now() >= end; }

    const std::chrono::steady_clock::time_point end;
    const uint64_t seed;
};
