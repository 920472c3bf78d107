// The swap interval, through whichever of the three extensions the host supports.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host::platform::x11 {

// Stored in the context, and applied whenever it is bound to a view: hosts store it per drawable.
void setSwapInterval(ContextContainer *container, int32_t interval);
// For a context that is current on the calling thread.
void applySwapInterval(const ContextContainer &container);

} // namespace host::platform::x11
