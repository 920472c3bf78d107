// The names of host functions by feature: data/feature_entry_points.def.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "capability/feature.h"

namespace capability {

struct EntryPointRow {
    Feature feature;
    std::array<const char *, 3> names; // by family; a single name serves all

    [[nodiscard]] const char *nameIn(size_t family) const { return names[1] ? names[family] : names[0]; }
};

inline constexpr auto entryPoints = std::to_array<EntryPointRow>({
#define FAMILY(...)
#define ENTRY_POINT(feature, ...) {Feature::feature, {__VA_ARGS__}},
#define DIRECT_STORAGE_ENTRY_POINT(...)
#include "capability/data/feature_entry_points.def"
#undef DIRECT_STORAGE_ENTRY_POINT
#undef ENTRY_POINT
#undef FAMILY
});

// The index of a function among those of its feature, found at compile time by its name in the feature's first family.
template <Feature feature>
class EntryPoint {
public:
    // Does not compile for a name that the feature does not have.
    consteval EntryPoint(const char *name) : m_place(placeOf(name)) {}

    [[nodiscard]] size_t place() const { return m_place; }

private:
    static consteval size_t placeOf(std::string_view name) {
        const auto first = std::ranges::find(entryPoints, feature, &EntryPointRow::feature);
        for (auto row = first; row != entryPoints.end() && row->feature == feature; ++row) {
            if (row->names[0] == name) return static_cast<size_t>(row - first);
        }
        throw "a function of another feature";
    }

    size_t m_place;
};

} // namespace capability
