// The libraries that functions are looked up in.
#pragma once

#include "libgl/entries.h"

namespace libgl {

// The host's function of this name; null if it has none. Any thread.
[[nodiscard]] Function findHostFunction(const char *name);
// libEGL's entry of this name; null if it has none. Any thread.
[[nodiscard]] Function findEglFunction(const char *name);

} // namespace libgl
