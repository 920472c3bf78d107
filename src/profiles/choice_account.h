// The details of a config choice: why each config was rejected, and what decided the order of the others.
#pragma once

#include <cstdint>
#include <vector>

namespace egl {

// The attribute that rejected a config.
struct FallOut {
    int32_t attribute;
    int32_t wanted;
    int32_t had;
    int32_t passed = 0; // the number of attributes before it that the config matched
};

// In place of an attribute when the colour bits decide: the sum of the colour sizes that the list requests.
inline constexpr int32_t colourBits = 0;

// The first difference between two configs in the sort order.
struct Comparison {
    bool isBefore;  // the former is sorted before the latter
    int32_t key;    // the attribute that differs, or colourBits
    int32_t former; // former, latter: its two values
    int32_t latter;
};

struct ChoiceAccount {
    struct FallenOut {
        int32_t id;
        FallOut reason;
    };
    std::vector<FallenOut> fallenOut; // in the order of EGL_CONFIG_ID
    std::vector<int32_t> order;       // the ids of the matching configs
    // Each config of the order, compared with the next. Where neither is before the other, the rules leave the pair
    // open, and the steps of the sort decided.
    std::vector<Comparison> comparisons;
};

} // namespace egl
