#include "common/per_back_end/entry_lookup.h"

#include "common/host_library.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "common/render_mode.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

struct HostName {
    std::string_view name;
    const char *hostName;
};

constexpr HostName hostNames[] = {
#define HOST_NAME(name, hostName) {#name, #hostName},
#include "data/host_names.def"
#undef HOST_NAME
};

// The debug names that return the host's function itself.
constexpr HostName debugNames[] = {
#define DEBUG_NAME(name, hostName) {#name, #hostName},
#include "data/debug_names.def"
#undef DEBUG_NAME
};

template <size_t size>
const char *find(const HostName (&table)[size], std::string_view name) {
    const auto row = std::ranges::find(table, name, &HostName::name);
    return row == std::end(table) ? nullptr : row->hostName;
}

} // namespace

void *lookUpEntry(std::string_view name) {
    if (!findHostGl()) return nullptr;
    if (void *const function = findWireframeSwitch(name)) return function;
    if (const char *const hostName = find(debugNames, name)) return hostFunction(hostName);
    return servesEntry(name) ? resolveExport(name) : nullptr;
}

void *resolveExport(std::string_view name) {
    if (!findHostGl()) return nullptr;
    if (void *const function = findOverride(name)) return function;
    const char *const otherName = find(hostNames, name);
    const std::string hostName = otherName ? otherName : std::string(name);
    if (void *const function = findOverride(hostName)) return function;
    return hostFunction(hostName.c_str());
}
