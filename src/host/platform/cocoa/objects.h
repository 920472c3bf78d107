// The handle types of the operations list on Cocoa: each handle is the address of one platform object.
#pragma once

#import <Cocoa/Cocoa.h>

#include "host/platform/operations.h"

#import "host/platform/cocoa/context_container.h"

namespace host::platform::cocoa {

inline NSOpenGLPixelFormat *objectOf(const PixelFormat *format) {
    return reinterpret_cast<NSOpenGLPixelFormat *>(const_cast<PixelFormat *>(format));
}

inline OSXOpenGLContextContainer *objectOf(const ContextContainer *container) {
    return reinterpret_cast<OSXOpenGLContextContainer *>(const_cast<ContextContainer *>(container));
}

inline NSOpenGLPixelBuffer *objectOf(const PixelBuffer *buffer) {
    return reinterpret_cast<NSOpenGLPixelBuffer *>(const_cast<PixelBuffer *>(buffer));
}

// A saved binding is the context that was current, retained.
inline NSOpenGLContext *objectOf(const SavedBinding *binding) {
    return reinterpret_cast<NSOpenGLContext *>(const_cast<SavedBinding *>(binding));
}

// The object that the application passed as its window; nil for View{}.
inline id objectOf(const View &view) {
    return reinterpret_cast<id>(view.window);
}

// Nil when that object is not a view.
inline NSView *viewOf(const View &view) {
    const id object = objectOf(view);
    return [object isKindOfClass:[NSView class]] ? object : nil;
}

template <typename Handle>
Handle *handleOf(id object) {
    return reinterpret_cast<Handle *>(object);
}

} // namespace host::platform::cocoa
