#include "journal/es_tables.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace journal {

namespace {

constexpr EsFunction functions[] = {
#define ES_FUNCTION(name, isInEs1, since, extensions, kinds) {#name, {isInEs1 != 0, since, extensions}, kinds},
#include "journal/data/es_functions.def"
#undef ES_FUNCTION
};
static_assert(std::ranges::is_sorted(functions, {}, [](const EsFunction &row) { return std::string_view(row.name); }));

constexpr EsEnumerant enumerants[] = {
#define ES_ENUMERANT(value, name, isInEs1, since, extensions) {value, #name, {isInEs1 != 0, since, extensions}},
#include "journal/data/es_enumerants.def"
#undef ES_ENUMERANT
};
static_assert(std::ranges::is_sorted(enumerants, {}, &EsEnumerant::value));

constexpr std::string_view extensions[] = {
#define ES_EXTENSION(name) name,
#include "journal/data/es_extensions.def"
#undef ES_EXTENSION
};
static_assert(std::ranges::is_sorted(extensions));

} // namespace

const EsFunction *findEsFunction(std::string_view name) {
    const auto nameOf = [](const EsFunction &row) { return std::string_view(row.name); };
    const auto *row = std::ranges::lower_bound(functions, name, {}, nameOf);
    return row != std::end(functions) && nameOf(*row) == name ? row : nullptr;
}

std::span<const EsEnumerant> esEnumerants() {
    return enumerants;
}

std::span<const std::string_view> esExtensionNames() {
    return extensions;
}

std::string enumerantName(uint32_t value) {
    const auto *row = std::ranges::lower_bound(enumerants, value, {}, &EsEnumerant::value);
    if (row != std::end(enumerants) && row->value == value) return row->name;
    char text[16];
    snprintf(text, sizeof text, "0x%04X", value);
    return text;
}

} // namespace journal
