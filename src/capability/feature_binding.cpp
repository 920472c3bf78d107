#include "capability/feature_binding.h"

#include <algorithm>
#include <array>
#include <span>

namespace capability {

namespace {

// The two lookups are the same on this platform, and are separate so that each family names the one that it requires.
using Lookup = void *(*)(const DynamicLibrary &library, const char *name);

void *core(const DynamicLibrary &library, const char *name) {
    return library.getSymbol(name);
}

void *extension(const DynamicLibrary &library, const char *name) {
    return library.getSymbol(name);
}

constexpr int32_t anyVariant = -2;

struct FamilyRow {
    Feature feature;
    int32_t variant;
    Lookup lookup;
};

constexpr auto families = std::to_array<FamilyRow>({
#define FAMILY(feature, variant, lookup) {Feature::feature, variant, lookup},
#define ENTRY_POINT(...)
#define DIRECT_STORAGE_ENTRY_POINT(...)
#include "capability/data/feature_entry_points.def"
#undef DIRECT_STORAGE_ENTRY_POINT
#undef ENTRY_POINT
#undef FAMILY
});

constexpr auto directStorageEntryPoints = std::to_array<const char *>({
#define FAMILY(...)
#define ENTRY_POINT(...)
#define DIRECT_STORAGE_ENTRY_POINT(feature, name) name,
#include "capability/data/feature_entry_points.def"
#undef DIRECT_STORAGE_ENTRY_POINT
#undef ENTRY_POINT
#undef FAMILY
});

static_assert(std::ranges::is_sorted(families, {}, &FamilyRow::feature) &&
                  std::ranges::is_sorted(entryPoints, {}, &EntryPointRow::feature),
              "rows are grouped by feature, in the order of the features");

template <typename Row, size_t count>
std::span<const Row> rowsOf(const std::array<Row, count> &rows, Feature feature) {
    return {std::ranges::lower_bound(rows, feature, {}, &Row::feature),
            std::ranges::upper_bound(rows, feature, {}, &Row::feature)};
}

bool alternativeSatisfied(const HostGlView &view, const FeatureAlternative &alternative) {
    if (hostGlVersion(view) < alternative.minVersion) return false;
    return std::ranges::all_of(alternative.extensions, [&](const char *name) { return hostHasExtension(view, name); });
}

// The variant of the first alternative that holds, or noVariant.
int32_t selectVariant(const FeatureDescriptor &descriptor, const HostGlView &view) {
    for (const auto &alternative : descriptor.alternatives) {
        if (alternativeSatisfied(view, alternative)) return static_cast<int32_t>(alternative.variant);
    }
    return noVariant;
}

// Checks the extension even if another alternative was selected: a host of OpenGL 4 can have texture storage without
// these functions.
void bindDirectStorage(Binding &binding, const HostGlView &view, const DynamicLibrary &library) {
    const auto &descriptor = descriptorOf(Feature::textureStorage);
    const auto byExtension = std::ranges::find(descriptor.alternatives, 1u, &FeatureAlternative::variant);
    binding.hasDirectStorage = alternativeSatisfied(view, *byExtension);
    if (!binding.hasDirectStorage) return;
    binding.functions.resize(rowsOf(entryPoints, Feature::textureStorage).size());
    for (const char *name : directStorageEntryPoints)
        binding.functions.push_back(extension(library, name));
}

} // namespace

bool isAvailable(Feature feature, const Binding &binding) {
    return binding.variant != noVariant || descriptorOf(feature).alternatives.empty();
}

bool bind(Feature feature, Binding &binding, const HostGlView &view, const DynamicLibrary &library) {
    binding.variant = selectVariant(descriptorOf(feature), view);
    const bool isThere = isAvailable(feature, binding);

    const auto known = rowsOf(families, feature);
    if (known.empty()) return isThere;
    const auto family = std::ranges::find_if(known, [&](const auto &row) {
        return row.variant == binding.variant || (row.variant == anyVariant && isThere);
    });
    if (family != known.end()) {
        binding.functions.clear();
        for (const auto &row : rowsOf(entryPoints, feature))
            binding.functions.push_back(family->lookup(library, row.nameIn(family - known.begin())));
    }
    if (feature == Feature::textureStorage) bindDirectStorage(binding, view, library);
    return family != known.end();
}

} // namespace capability
