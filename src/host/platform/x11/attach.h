// The drawables of a context: attaching views and pixel buffers, and swapping a view.
#pragma once

#include "host/platform/operations.h"

namespace host::platform::x11 {

bool setView(ContextContainer *container, const View &view);
View view(const ContextContainer *container);
bool setPixelBuffer(ContextContainer *container, PixelBuffer *buffer);
bool setReadObject(ContextContainer *container, const NativeObject &object);
void observeViewFrame(ContextContainer *container, const View &view);
void flushBuffer(ContextContainer *container);
int32_t bufferAge(ContextContainer *container);

} // namespace host::platform::x11
