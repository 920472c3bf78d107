// What a choice of configs tells beside its answer: why a config fell out, and what decided the order of the others.
#pragma once

#include <cstdint>
#include <vector>

namespace egl {

// The first attribute that threw a config out.
struct FallOut {
    int32_t attribute;
    int32_t wanted;
    int32_t had;
};

// Stands for an attribute where the colour bits decide: the sum of the colour sizes that the list asks for.
inline constexpr int32_t colourBits = 0;

// What two configs were compared by.
struct Comparison {
    bool isBefore;  // the former comes before the latter
    int32_t key;    // the attribute that told them apart, or colourBits
    int32_t former; // the two values of it
    int32_t latter;
};

struct ChoiceAccount {
    struct FallenOut {
        int32_t id;
        FallOut reason;
    };
    std::vector<FallenOut> fallenOut; // in the order of the ids
    std::vector<int32_t> order;       // the ids of those that match
    // Of each of the order and the one behind it. Where none is before, their rules leave the pair open, and the steps
    // of the sort settled it.
    std::vector<Comparison> comparisons;
};

} // namespace egl
