// The order in which eglChooseConfig returns matching configs.
#pragma once

#include <cstdint>
#include <vector>

#include "profiles/config.h"

namespace egl {

// Whether a is sorted before b for the application's list. Configs that differ in the colour bits that the list
// requests are unordered, so this is no strict weak order: never pass it to std::sort.
class ConfigSortOrder {
public:
    explicit ConfigSortOrder(const int32_t *attributes);
    [[nodiscard]] bool operator()(const Config &a, const Config &b) const { return compare(a, b).isBefore; }
    [[nodiscard]] Comparison compare(const Config &a, const Config &b) const;

private:
    [[nodiscard]] uint32_t colourSum(const Config &config) const;

    std::vector<int32_t> m_channels; // the colour sizes that the list requests
};

void sortConfigs(std::vector<Config> &configs, const ConfigSortOrder &order);

} // namespace egl
