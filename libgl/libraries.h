// The libraries that functions are looked up in.
#pragma once

#include "libgl/entries.h"

namespace libgl {

// The host's function of this name; null when it has none. Any thread.
[[nodiscard]] Function findHostFunction(const char *name);
// The entry of libEGL; null when it has none. Any thread.
[[nodiscard]] Function findEglFunction(const char *name);

} // namespace libgl
