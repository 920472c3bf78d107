// The object that owns a context and follows the frame of the views it draws to. Reference-counted by hand.
#pragma once

#import <Cocoa/Cocoa.h>

@interface OSXOpenGLContextContainer : NSObject {
    NSOpenGLContext *m_context;
}

@property(atomic, retain) NSOpenGLContext *m_context;

- (id)initWithContext:(NSOpenGLContext *)context;
// For NSViewFrameDidChangeNotification. Arrives on the thread that changed the frame.
- (void)resizedNotification:(NSNotification *)notification;

@end
