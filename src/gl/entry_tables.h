// The proxies that eglGetProcAddress returns.
#pragma once

#include <array>

#include "gl/function_table.h"

namespace gl {

struct ProcTableRow {
    const char *name;
    Function function; // cast from the type of its name
};

// Extensions, then the debug entries that are passed to the back end.
extern const std::array<ProcTableRow, extensionNameCount> extensionTable;
// OpenGL ES 1, 2 and 3. glPointSizePointerOES is in both tables, with a proxy in each.
extern const std::array<ProcTableRow, baseNameCount> baseTable;

// The entry of this name, from the extension table if both have it. Null when neither has.
[[nodiscard]] Function findEntry(const char *name);

} // namespace gl
