// Copies what was drawn to pixmaps, which GLX draws to with a back buffer of their own. The context is current.
#pragma once

#include "host/platform/operations.h"

namespace host::platform::x11 {

// The attached pixmap is complete when this returns.
void showPixmap(ContextContainer &container);
bool copyToPixmap(ContextContainer *container, PixelBuffer *pixmap);

} // namespace host::platform::x11
