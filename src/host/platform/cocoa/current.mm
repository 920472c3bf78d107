#include "host/platform/cocoa/current.h"

#import "host/platform/cocoa/objects.h"
#import "host/platform/cocoa/owned_contexts.h"

namespace host::platform::cocoa {

ContextContainer *currentContext() {
    @autoreleasepool {
        return ownerOf([NSOpenGLContext currentContext]);
    }
}

void clearCurrentContext() {
    [NSOpenGLContext clearCurrentContext];
}

bool makeCurrent(ContextContainer *container) {
    @autoreleasepool {
        [[objectOf(container) m_context] makeCurrentContext];
    }
    return true; // Cocoa does not report failures
}

// A context keeps its drawable attached, so saving the context is enough.
SavedBinding *saveBinding() {
    @autoreleasepool {
        return handleOf<SavedBinding>([[NSOpenGLContext currentContext] retain]);
    }
}

void restoreBinding(SavedBinding *binding) {
    if (!binding) {
        clearCurrentContext();
        return;
    }
    [objectOf(binding) makeCurrentContext];
    [objectOf(binding) release];
}

} // namespace host::platform::cocoa
