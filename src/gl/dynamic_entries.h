// Entries for names that are in no table, assigned at run time. Like all entries they jump to the function, and do not
// depend on its parameters.
#pragma once

#include <cstddef>

#include "gl/function_table.h"

namespace gl {

// The entry of that name, the same one at each call. Null when too many names have one already, and on machines for
// which this library has no such entries. Any thread.
[[nodiscard]] Function dynamicEntry(const char *name);

} // namespace gl
