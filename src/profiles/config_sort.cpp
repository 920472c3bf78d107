#include "profiles/config_sort.h"

#include <map>
#include <optional>

#include <EGL/egl.h>

#include "foundation/attribute_list.h"
#include "profiles/partition_sort.h"

namespace egl {

namespace {

// Smaller values are sorted first; the attributes are in order of significance.
constexpr int32_t sizeKeys[] = {EGL_BUFFER_SIZE, EGL_SAMPLE_BUFFERS, EGL_SAMPLES, EGL_DEPTH_SIZE, EGL_STENCIL_SIZE};

// Nothing when the caveats do not decide, as for an unknown caveat in a. If the other is EGL_NONE, the two directions
// contradict each other: each sorts its a first. The partition sort defines the order of such lists.
std::optional<bool> compareCaveats(int32_t a, int32_t b) {
    if (a == b) return std::nullopt;
    if (a == EGL_NON_CONFORMANT_CONFIG) return false;
    if (a == EGL_SLOW_CONFIG && b == EGL_NONE) return false;
    if (a == EGL_SLOW_CONFIG && b == EGL_NON_CONFORMANT_CONFIG) return true;
    if (a == EGL_NONE) return true;
    return std::nullopt;
}

} // namespace

ConfigSortOrder::ConfigSortOrder(const int32_t *attributes) {
    std::map<int32_t, int32_t> requested;
    for (const auto &[name, value] : AttributeList(attributes))
        requested[name] = value;
    for (const int32_t channel : {EGL_RED_SIZE, EGL_GREEN_SIZE, EGL_BLUE_SIZE, EGL_ALPHA_SIZE})
        if (requested[channel] != 0 && requested[channel] != EGL_DONT_CARE) m_channels.push_back(channel);
}

// Unsigned, since the sizes of a profile may overflow in the sum; sums are only compared for equality.
uint32_t ConfigSortOrder::colourSum(const Config &config) const {
    uint32_t sum = 0;
    for (const int32_t channel : m_channels)
        sum += static_cast<uint32_t>(config.attributeOr0(channel));
    return sum;
}

Comparison ConfigSortOrder::compare(const Config &a, const Config &b) const {
    const int32_t caveats[] = {a.attributeOr0(EGL_CONFIG_CAVEAT), b.attributeOr0(EGL_CONFIG_CAVEAT)};
    const auto byCaveat = compareCaveats(caveats[0], caveats[1]);
    if (byCaveat) return {*byCaveat, EGL_CONFIG_CAVEAT, caveats[0], caveats[1]};
    // False in both directions: neither config is sorted first, and the partition sort defines the order.
    const uint32_t sums[] = {colourSum(a), colourSum(b)};
    if (sums[0] != sums[1]) return {false, colourBits, static_cast<int32_t>(sums[0]), static_cast<int32_t>(sums[1])};
    for (const int32_t key : sizeKeys) {
        const int32_t sizes[] = {a.attributeOr0(key), b.attributeOr0(key)};
        if (sizes[0] != sizes[1]) return {sizes[0] < sizes[1], key, sizes[0], sizes[1]};
    }
    return {a < b, EGL_CONFIG_ID, a.attributeOr0(EGL_CONFIG_ID), b.attributeOr0(EGL_CONFIG_ID)};
}

void sortConfigs(std::vector<Config> &configs, const ConfigSortOrder &order) {
    PartitionSort<Config, ConfigSortOrder>(configs, order).run();
}

} // namespace egl
