// The names of ES 2 and 3 and of their extensions.
#include "common/per_back_end/entry_lookup.h"
#include "context/es_context.h"

#include <algorithm>
#include <iterator>

namespace {

struct EsName {
    std::string_view name;
    int version;
    std::string_view extensions;
};

// Sorted by name.
constexpr EsName esNames[] = {
#define ES_NAME(name, version, extensions) {#name, version, extensions},
#include "data/es_names.def"
#undef ES_NAME
};
static_assert(std::ranges::is_sorted(esNames, std::ranges::less_equal{}, &EsName::name));

} // namespace

bool servesEntry(std::string_view name) {
    const auto row = std::ranges::lower_bound(esNames, name, {}, &EsName::name);
    if (row == std::end(esNames) || row->name != name) return false;
    const EsContext *const context = EsContext::current();
    return !context || context->host.carries(row->version, row->extensions) ||
           context->announced.hasOneOf(row->extensions);
}
