// Facts about a context that Cocoa does not report: which container owns it, and on which display its view was
// attached. One record per live container. Any thread.
#pragma once

#include <cstdint>

#import <Cocoa/Cocoa.h>

#include "host/platform/operations.h"

namespace host::platform::cocoa {

void addOwner(NSOpenGLContext *context, ContextContainer *container);
void removeOwner(NSOpenGLContext *context);
// Null for nil and for a context that this library did not create.
[[nodiscard]] ContextContainer *ownerOf(NSOpenGLContext *context);

void setDisplayOf(NSOpenGLContext *context, uint64_t display);
[[nodiscard]] uint64_t displayOf(NSOpenGLContext *context);

} // namespace host::platform::cocoa
