// Size and title of application windows. The size is queried from the server at every call, the title once a change.
#pragma once

#include <cstdint>
#include <string>

#include "host/platform/operations.h"

namespace host::platform::x11 {

void viewSize(const View &view, int32_t *width, int32_t *height);
std::string viewTitle(const View &view);

} // namespace host::platform::x11
