// The drawables of a context: attaching views and pixel buffers, and swapping a view.
#pragma once

#include "host/platform/operations.h"

namespace host::platform::cocoa {

bool setView(ContextContainer *container, const View &view);
View view(const ContextContainer *container);
bool setPixelBuffer(ContextContainer *container, PixelBuffer *buffer);
bool setReadObject(ContextContainer *container, const NativeObject &object);
void observeViewFrame(ContextContainer *container, const View &view);
void flushBuffer(ContextContainer *container);
// Always 0: Cocoa does not report it.
int32_t bufferAge(ContextContainer *container);
// Does nothing: on Cocoa the application has no connection of its own.
void flushApplication(uint64_t display);

} // namespace host::platform::cocoa
