#include "host/platform/cocoa/context.h"

#import "host/platform/cocoa/objects.h"
#import "host/platform/cocoa/owned_contexts.h"

namespace host::platform::cocoa {

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share) {
    if (!format) return nullptr;
    @autoreleasepool {
        NSOpenGLContext *context = [[NSOpenGLContext alloc] initWithFormat:objectOf(format)
                                                              shareContext:[objectOf(share) m_context]];
        if (!context) return nullptr;
        auto *container = handleOf<ContextContainer>([[OSXOpenGLContextContainer alloc] initWithContext:context]);
        [context release]; // the container holds it
        addOwner(context, container);
        return container;
    }
}

void releaseContext(ContextContainer *container) {
    @autoreleasepool {
        removeOwner([objectOf(container) m_context]);
    }
    [objectOf(container) release];
}

} // namespace host::platform::cocoa
