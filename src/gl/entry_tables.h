// The proxies that eglGetProcAddress hands out, in the order that it searches.
#pragma once

#include "gl/answer_map.h"

namespace gl {

struct ProcTableRow {
    const char *name;
    Function function; // of the type that the name has
};

// Extensions, then the debug entries that go through to the back end.
extern const ProcTableRow extensionTable[226];
// OpenGL ES 1, 2 and 3. glPointSizePointerOES stands in both tables, with a proxy in each.
extern const ProcTableRow baseTable[439];

} // namespace gl
