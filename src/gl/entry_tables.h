// The proxies that eglGetProcAddress hands out.
#pragma once

#include <array>

#include "gl/function_table.h"

namespace gl {

struct ProcTableRow {
    const char *name;
    Function function; // of the type that the name has
};

// Extensions, then the debug entries that go through to the back end.
extern const std::array<ProcTableRow, extensionNameCount> extensionTable;
// OpenGL ES 1, 2 and 3. glPointSizePointerOES stands in both tables, with a proxy in each.
extern const std::array<ProcTableRow, baseNameCount> baseTable;

// The entry of this name, of the extension table where both have it. Null when none has.
[[nodiscard]] Function findEntry(const char *name);

} // namespace gl
