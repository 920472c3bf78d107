#import "host/platform/cocoa/context_container.h"

@implementation OSXOpenGLContextContainer

@synthesize m_context;

// The superclass has nothing to initialise.
- (id)initWithContext:(NSOpenGLContext *)context {
    self.m_context = context;
    return self;
}

- (void)resizedNotification:(NSNotification *)notification {
    (void)notification; // one container has one context, whichever view changed
    [m_context update];
}

// The only place where a context goes for good.
- (void)dealloc {
    [m_context release];
    [super dealloc];
}

@end
