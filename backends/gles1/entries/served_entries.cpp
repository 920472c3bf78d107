// The names of ES 1.1 and of its extensions.
#include "announcement/extensions.h"
#include "common/per_back_end/entry_lookup.h"
#include "context/es_context.h"

#include <algorithm>
#include <iterator>

namespace {

struct Entry {
    std::string_view name;
    std::string_view extension; // empty for the core of ES 1.1
};

constexpr Entry entries[] = {
#define ENTRY(result, name, parameters, arguments, extension) {#name, extension},
#include "data/entries.def"
#include "data/own_entries.def"
#undef ENTRY
};

} // namespace

bool servesEntry(std::string_view name) {
    const auto entry = std::ranges::find(entries, name, &Entry::name);
    if (entry == std::end(entries)) return false;
    const EsContext *const context = EsContext::current();
    return !context || entry->extension.empty() || carriesExtension(context->host, entry->extension);
}
