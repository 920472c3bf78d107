#include "host/platform/cocoa/attach.h"

#import "host/platform/cocoa/objects.h"
#import "host/platform/cocoa/owned_contexts.h"

namespace host::platform::cocoa {

namespace {

void attachView(NSOpenGLContext *context, const View &view) {
    [context setView:viewOf(view)];
    setDisplayOf(context, view.display);
}

void attachBuffer(NSOpenGLContext *context, NSOpenGLPixelBuffer *buffer) {
    [context setPixelBuffer:buffer cubeMapFace:0 mipMapLevel:0 currentVirtualScreen:0];
}

} // namespace

bool setView(ContextContainer *container, const View &view) {
    @autoreleasepool {
        NSOpenGLContext *context = [objectOf(container) m_context];
        const id object = objectOf(view);
        // An application may pass a pixel buffer as its window. Any other object is not attached, which is no failure:
        // the context is then made current with its attached drawable.
        if (!object || viewOf(view))
            attachView(context, view);
        else if ([object isKindOfClass:[NSOpenGLPixelBuffer class]])
            attachBuffer(context, object);
        return true;
    }
}

View view(const ContextContainer *container) {
    @autoreleasepool {
        NSOpenGLContext *context = [objectOf(container) m_context];
        NSView *attached = [context view];
        if (!attached) return {};
        return {displayOf(context), reinterpret_cast<uint64_t>(attached)};
    }
}

bool setPixelBuffer(ContextContainer *container, PixelBuffer *buffer) {
    if (!buffer) return setView(container, {});
    @autoreleasepool {
        attachBuffer([objectOf(container) m_context], objectOf(buffer));
        return true;
    }
}

bool setReadObject(ContextContainer *, const NativeObject &) {
    return true;
}

void observeViewFrame(ContextContainer *container, const View &view) {
    NSView *observed = viewOf(view);
    if (!observed) return;
    [[NSNotificationCenter defaultCenter] addObserver:objectOf(container)
                                             selector:@selector(resizedNotification:)
                                                 name:NSViewFrameDidChangeNotification
                                               object:observed];
}

void flushBuffer(ContextContainer *container) {
    @autoreleasepool {
        [[objectOf(container) m_context] flushBuffer];
    }
}

int32_t bufferAge(ContextContainer *) {
    return 0;
}

void flushApplication(uint64_t) {}

} // namespace host::platform::cocoa
