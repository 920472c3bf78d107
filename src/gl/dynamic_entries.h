// Entries for names that no table has, made while the process runs. They jump as all entries do, and so need to know
// nothing of the arguments.
#pragma once

#include <cstddef>

#include "gl/function_table.h"

namespace gl {

// The entry of that name, the same one at each call. Null when too many names have one already, and on machines that
// this library has no such entries for. Any thread.
[[nodiscard]] Function dynamicEntry(const char *name);

} // namespace gl
