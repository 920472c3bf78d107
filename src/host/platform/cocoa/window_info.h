// Size and title of application views, queried from the platform at every call.
#pragma once

#include <cstdint>
#include <string>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

// Frames may be read on the main thread only: other threads wait until the main queue has read the frame, and wait for
// ever if the main thread waits for the caller.
void viewSize(const View &view, int32_t *width, int32_t *height);
std::string viewTitle(const View &view);

} // namespace host::platform::cocoa
