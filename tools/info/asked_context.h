// The properties that the current OpenGL ES context reports.
#pragma once

#include "tools/command/json.h"
#include "tools/info/loaded_egl.h"

// The strings, extensions, limits and compressed formats of the calling thread's context.
[[nodiscard]] Json askContext(const LoadedEgl &egl);
