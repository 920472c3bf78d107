#include "capability/extension_catalogue.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace capability {

namespace {

struct ExtensionRow {
    int32_t value;
    const char *name;
    const char *prefixedName;
};

constexpr auto hostExtensions = std::to_array<ExtensionRow>({
#define HOST_EXTENSION(value, name) {value, name, "GL_" name},
#include "capability/data/host_extensions.def"
#undef HOST_EXTENSION
});

constexpr auto esExtensions = std::to_array<ExtensionRow>({
#define ES_EXTENSION(value, name) {value, name, "GL_" name},
#include "capability/data/es_extensions.def"
#undef ES_EXTENSION
});

struct EsRangeRow {
    EsExtension first;
    EsExtension last;
    std::array<bool, 4> isInList;
};

constexpr auto esRanges = std::to_array<EsRangeRow>({
#define ES_EXTENSION_RANGE(first, last, es1_1, es2_0, es3_0, es3_1) {first, last, {es1_1, es2_0, es3_0, es3_1}},
#include "capability/data/es_extension_ranges.def"
#undef ES_EXTENSION_RANGE
});

constexpr bool isNumberedFrom1(std::span<const ExtensionRow> rows) {
    for (size_t index = 0; index < rows.size(); ++index) {
        if (rows[index].value != static_cast<int32_t>(index) + 1) return false;
    }
    return true;
}
static_assert(isNumberedFrom1(hostExtensions) && isNumberedFrom1(esExtensions), "a value is an index into the table");

constexpr const char *unknownExtension = "<unknown extension>";

int32_t findName(std::span<const ExtensionRow> rows, const char *name) {
    if (!name) return 0;
    const std::string_view text = name;
    const auto row =
        std::ranges::find_if(rows, [&](const auto &row) { return text == row.name || text == row.prefixedName; });
    return row == rows.end() ? 0 : row->value;
}

const ExtensionRow *findValue(std::span<const ExtensionRow> rows, int32_t value) {
    return value >= 1 && value <= static_cast<int32_t>(rows.size()) ? &rows[value - 1] : nullptr;
}

} // namespace

const HostExtension hostExtensionCount = hostExtensions.size();

HostExtension hostExtensionFromName(const char *name) {
    return findName(hostExtensions, name);
}

const char *hostExtensionName(HostExtension value) {
    const auto *row = findValue(hostExtensions, value);
    return row ? row->name : unknownExtension;
}

EsExtension esExtensionFromName(const char *name) {
    return findName(esExtensions, name);
}

const char *esExtensionName(EsExtension value, bool withPrefix) {
    const auto *row = findValue(esExtensions, value);
    if (!row) return unknownExtension;
    return withPrefix ? row->prefixedName : row->name;
}

EsExtension esExtensionsFor(EsExtensionList list, int32_t position) {
    if (position < 1) return 0;
    for (const auto &range : esRanges) {
        if (!range.isInList[static_cast<size_t>(list)]) continue;
        const int32_t size = range.last - range.first + 1;
        if (position <= size) return range.first + position - 1;
        position -= size;
    }
    return 0;
}

} // namespace capability
