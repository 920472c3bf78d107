#include "entry_lookup.h"

#include "common/host_library.h"
#include "common/render_mode.h"
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"

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
    // Sources go to the host in the form that it is to compile.
    {"zvGetOpenGLShaderSource", "glGetShaderSource"},
};

template <size_t size>
const char *find(const HostName (&table)[size], std::string_view name) {
    const auto row = std::ranges::find(table, name, &HostName::name);
    return row == std::end(table) ? nullptr : row->hostName;
}

const EsName *findEsName(std::string_view name) {
    const auto row = std::ranges::lower_bound(esNames, name, {}, &EsName::name);
    return row == std::end(esNames) || row->name != name ? nullptr : row;
}

} // namespace

void *lookUpEntry(std::string_view name) {
    if (!findHostGl()) return nullptr;
    if (void *const function = findWireframeSwitch(name)) return function;
    if (const char *const hostName = find(debugNames, name)) return hostFunction(hostName);
    const EsName *const row = findEsName(name);
    if (!row) return nullptr;
    const EsContext *const context = EsContext::current();
    if (context && !context->host.carries(row->version, row->extensions) &&
        !context->announced.hasOneOf(row->extensions)) {
        return nullptr;
    }
    return resolveExport(row->name);
}

void *resolveExport(std::string_view name) {
    if (!findHostGl()) return nullptr;
    const char *const otherName = find(hostNames, name);
    const std::string hostName = otherName ? otherName : std::string(name);
    if (void *const function = findOverride(hostName)) return function;
    return hostFunction(hostName.c_str());
}
