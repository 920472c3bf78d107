#include "gl/entry_tables.h"

#include "foundation/name_index.h"
#include "gl/entry_proxy.h"

namespace gl {

namespace {

// A namespace for each table, since one name has a record in both.
#define PROXY(result, name, parameters) name,
enum class ExtensionSlot : size_t {
#include "gl/data/extension_entries.def"
    count
};
enum class BaseSlot : size_t {
#include "gl/data/base_entries.def"
    count
};
#undef PROXY
static_assert(size_t(ExtensionSlot::count) == extensionNameCount && size_t(BaseSlot::count) == baseNameCount);

#define PROXY(result, name, parameters) constexpr GLEntryProxy name{#name, size_t(ExtensionSlot::name)};
namespace extension {
#include "gl/data/extension_entries.def"
}
#undef PROXY
#define PROXY(result, name, parameters) constexpr GLEntryProxy name{#name, extensionNameCount + size_t(BaseSlot::name)};
namespace base {
#include "gl/data/base_entries.def"
}
#undef PROXY

// In the order of the slots.
#define PROXY(result, name, parameters) #name,
constexpr NameIndex<firstDynamicSlot> names({
#include "gl/data/extension_entries.def"

#include "gl/data/base_entries.def"
});
#undef PROXY

} // namespace

#define PROXY(result, name, parameters)                                                                                \
    ProcTableRow{#name, reinterpret_cast<Function>(&Entry<extension::name, result parameters>::call)},
const std::array<ProcTableRow, extensionNameCount> extensionTable = {
#include "gl/data/extension_entries.def"
};
#undef PROXY

#define PROXY(result, name, parameters)                                                                                \
    ProcTableRow{#name, reinterpret_cast<Function>(&Entry<base::name, result parameters>::call)},
const std::array<ProcTableRow, baseNameCount> baseTable = {
#include "gl/data/base_entries.def"
};
#undef PROXY

FunctionTable functionsWithoutContext = {.slots = {
#define PROXY(result, name, parameters) reinterpret_cast<Function>(&Entry<extension::name, result parameters>::resolve),
#include "gl/data/extension_entries.def"
#undef PROXY
#define PROXY(result, name, parameters) reinterpret_cast<Function>(&Entry<base::name, result parameters>::resolve),
#include "gl/data/base_entries.def"
#undef PROXY
                                         }};

Function findEntry(const char *name) {
    const size_t slot = names.find(name);
    if (slot == names.none) return nullptr;
    return slot < extensionNameCount ? extensionTable[slot].function : baseTable[slot - extensionNameCount].function;
}

} // namespace gl
