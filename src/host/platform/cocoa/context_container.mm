#import "host/platform/cocoa/context_container.h"

@implementation OSXOpenGLContextContainer

@synthesize m_context;

// The superclass has nothing to initialise.
- (id)initWithContext:(NSOpenGLContext *)context {
    self.m_context = context;
    return self;
}

- (void)resizedNotification:(NSNotification *)notification {
    (void)notification; // the container updates its one context, whichever view changed
    [m_context update];
}

// The only place that releases a context.
- (void)dealloc {
    [m_context release];
    [super dealloc];
}

@end
