// FNV-1 in 32 bits: multiply first, then exclusive-or the byte. Used for element names and file stamps.
#pragma once

#include <cstdint>

inline constexpr uint32_t fnv1Basis = 2166136261u;

[[nodiscard]] constexpr uint32_t fnv1Step(uint32_t hash, uint8_t byte) {
    return hash * 16777619u ^ byte;
}

// A null or empty text hashes to 0.
[[nodiscard]] constexpr uint32_t fnv1Hash(const char *text) {
    if (!text || !*text) return 0;
    uint32_t hash = fnv1Basis;
    for (; *text; ++text) {
        hash = fnv1Step(hash, static_cast<uint8_t>(*text));
    }
    return hash;
}
