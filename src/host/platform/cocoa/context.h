// Contexts on Cocoa, each in a container that owns it. Objects that the platform's getters autorelease are released by
// pools of our own: an application's rendering threads may have none, and a context would then outlive its owner.
#pragma once

#include "host/platform/operations.h"

namespace host::platform::cocoa {

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share);
void releaseContext(ContextContainer *container);

} // namespace host::platform::cocoa
