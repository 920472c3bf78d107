#include "gl/entry_tables.h"

#include "gl/entry_proxy.h"

namespace gl {

namespace {

// A namespace for each table, since one name has a record in both.
#define PROXY(result, name, parameters) constinit GLEntryProxy name{#name};
namespace extension {
#include "gl/data/extension_entries.def"
}
namespace base {
#include "gl/data/base_entries.def"
}
#undef PROXY

} // namespace

// A table with a row too many or too few does not fit its declaration.
#define PROXY(result, name, parameters)                                                                                \
    {#name, reinterpret_cast<Function>(&Entry<extension::name, result parameters>::call)},
const ProcTableRow extensionTable[] = {
#include "gl/data/extension_entries.def"
};
#undef PROXY

#define PROXY(result, name, parameters)                                                                                \
    {#name, reinterpret_cast<Function>(&Entry<base::name, result parameters>::call)},
const ProcTableRow baseTable[] = {
#include "gl/data/base_entries.def"
};
#undef PROXY

} // namespace gl
