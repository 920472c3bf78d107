// Contexts on Cocoa, each in a container that owns it. What the getters of the platform autorelease lives in pools of
// our own: an application's rendering threads need not have one, and a context would then outlive its owner.
#pragma once

#include "host/platform/operations.h"

namespace host::platform::cocoa {

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share);
void releaseContext(ContextContainer *container);

} // namespace host::platform::cocoa
