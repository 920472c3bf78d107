// The swap interval, which Cocoa stores in the context.
#pragma once

#include <cstdint>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

void setSwapInterval(ContextContainer *container, int32_t interval);

} // namespace host::platform::cocoa
