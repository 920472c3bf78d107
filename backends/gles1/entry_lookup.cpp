#include "entry_lookup.h"

#include "common/host_library.h"
#include "common/render_mode.h"
#include "es_context.h"
#include "extensions.h"
#include "host_gl.h"
#include "overrides.h"

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

struct HostName {
    std::string_view name;
    const char *hostName;
};

constexpr HostName hostNames[] = {
#define HOST_NAME(name, hostName) {#name, #hostName},
#include "data/host_names.def"
#undef HOST_NAME
};

// The debug names that reach the host's function as it is.
constexpr HostName debugNames[] = {
#define DEBUG_NAME(name, hostName) {#name, #hostName},
#include "common/data/debug_names.def"
#undef DEBUG_NAME
};

template <size_t size>
const char *find(const HostName (&table)[size], std::string_view name) {
    const auto row = std::ranges::find(table, name, &HostName::name);
    return row == std::end(table) ? nullptr : row->hostName;
}

void *debugEntry(std::string_view name) {
    if (void *const function = findWireframeSwitch(name)) return function;
    const char *const hostName = find(debugNames, name);
    return hostName ? hostFunction(hostName) : nullptr;
}

} // namespace

void *lookUpEntry(std::string_view name) {
    if (!findHostGl()) return nullptr;
    if (void *const function = debugEntry(name)) return function;
    const auto entry = std::ranges::find(entries, name, &Entry::name);
    if (entry == std::end(entries)) return nullptr;
    const EsContext *const context = EsContext::current();
    if (context && !entry->extension.empty() && !carriesExtension(context->host, entry->extension)) return nullptr;
    return resolveExport(entry->name);
}

void *resolveExport(std::string_view name) {
    if (!findHostGl()) return nullptr;
    if (void *const function = findOverride(name)) return function;
    const char *const hostName = find(hostNames, name);
    return hostFunction(hostName ? hostName : std::string(name).c_str());
}
