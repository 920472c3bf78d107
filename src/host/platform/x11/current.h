// The current context of a thread, created by this library or not.
#pragma once

#include "host/platform/operations.h"

namespace host::platform::x11 {

ContextContainer *currentContext();
void clearCurrentContext();
bool makeCurrent(ContextContainer *container);
SavedBinding *saveBinding();
void restoreBinding(SavedBinding *binding);

} // namespace host::platform::x11
